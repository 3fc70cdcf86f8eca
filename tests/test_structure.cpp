// What the compiler does not see: the direction of includes, and names that moc would spoil.
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

class TestStructure : public QObject
{
    Q_OBJECT

private slots:
    void includesPointDownwards();
    void mocNamesAreAscii();
    void textNumbersAreUnique();

private:
    static QString read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    static QStringList sources(const QStringList& folders)
    {
        QStringList found;
        for (const QString& folder : folders) {
            QDirIterator files(QStringLiteral(SOURCE_FOLDER "/") + folder,
                               {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files);
            while (files.hasNext())
                found.append(files.next());
        }
        return found;
    }
};

void TestStructure::includesPointDownwards()
{
    const QHash<QString, QSet<QString>> below = {
        {QStringLiteral("text"), {}},
        {QStringLiteral("store"), {QStringLiteral("text")}},
        {QStringLiteral("app"), {QStringLiteral("text"), QStringLiteral("store")}},
        {QStringLiteral("controls"),
         {QStringLiteral("text"), QStringLiteral("store"), QStringLiteral("app")}},
        {QStringLiteral("forms"),
         {QStringLiteral("text"), QStringLiteral("store"), QStringLiteral("app"),
          QStringLiteral("controls")}},
        {QStringLiteral("tools"), {QStringLiteral("text"), QStringLiteral("store")}},
    };
    static const QRegularExpression include(QStringLiteral("#include [\"<]([^\"/>]+)(/[^\">]*)?[\">]"));
    int seen = 0;
    for (auto layer = below.begin(); layer != below.end(); ++layer) {
        for (const QString& path : sources({layer.key()})) {
            auto matches = include.globalMatch(read(path));
            while (matches.hasNext()) {
                const QRegularExpressionMatch match = matches.next();
                const QString folder = match.captured(1);
                ++seen;
                if (match.captured(2).isEmpty()) { // a library's header
                    const bool windows = folder.startsWith(QStringLiteral("QWidget")) ||
                                         folder == QStringLiteral("QApplication");
                    QVERIFY2(!windows || (layer.key() != QStringLiteral("store") &&
                                          layer.key() != QStringLiteral("text")),
                             qPrintable(path));
                    continue;
                }
                QVERIFY2(folder == layer.key() || layer->contains(folder) ||
                             folder == QStringLiteral("sys") || folder == QStringLiteral("unicode"),
                         qPrintable(path + QStringLiteral(" includes ") + match.captured(0)));
            }
        }
    }
    QVERIFY(seen > 100);
}

void TestStructure::mocNamesAreAscii()
{
    static const QRegularExpression sınıf(QStringLiteral("class\\s+(\\S+)[^;{]*\\{\\s*Q_OBJECT"));
    int seen = 0;
    for (const QString& path :
         sources({QStringLiteral("app"), QStringLiteral("controls"), QStringLiteral("forms"),
                  QStringLiteral("program"), QStringLiteral("tests")})) {
        auto matches = sınıf.globalMatch(read(path));
        while (matches.hasNext()) {
            const QString name = matches.next().captured(1);
            ++seen;
            QVERIFY2(std::all_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 128; }),
                     qPrintable(path));
        }
    }
    QVERIFY(seen > 4);
}

void TestStructure::textNumbersAreUnique()
{
    QSet<int> seen;
    const QStringList lines =
        read(QStringLiteral(SOURCE_FOLDER "/resources/metinler.tsv")).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const int number = line.section(u'\t', 0, 0).toInt();
        QVERIFY2(number >= 5 && number <= 550 && line.count(u'\t') == 1, qPrintable(line));
        QVERIFY2(!seen.contains(number), qPrintable(line));
        seen.insert(number);
    }
    QVERIFY(seen.size() > 20);
}

QTEST_APPLESS_MAIN(TestStructure)
#include "test_structure.moc"

// What the compiler does not see: the direction of includes, and names that moc would spoil.
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

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
            QDirIterator files(QStringLiteral(SOURCE_FOLDER "/") + folder, {u"*.h"_s, u"*.cpp"_s},
                               QDir::Files);
            while (files.hasNext())
                found.append(files.next());
        }
        return found;
    }
};

void TestStructure::includesPointDownwards()
{
    const QHash<QString, QSet<QString>> below = {
        {u"text"_s, {}},
        {u"store"_s, {u"text"_s}},
        {u"app"_s, {u"text"_s, u"store"_s}},
        {u"controls"_s, {u"text"_s, u"store"_s, u"app"_s}},
        {u"forms"_s, {u"text"_s, u"store"_s, u"app"_s, u"controls"_s}},
        {u"tools"_s, {u"text"_s, u"store"_s}},
    };
    static const QRegularExpression include(u"#include [\"<]([^\"/>]+)(/[^\">]*)?[\">]"_s);
    int seen = 0;
    for (auto layer = below.begin(); layer != below.end(); ++layer) {
        for (const QString& path : sources({layer.key()})) {
            auto matches = include.globalMatch(read(path));
            while (matches.hasNext()) {
                const QRegularExpressionMatch match = matches.next();
                const QString folder = match.captured(1);
                ++seen;
                if (match.captured(2).isEmpty()) { // a library's header
                    const bool windows = folder.startsWith(u"QWidget"_s) || folder == u"QApplication"_s;
                    QVERIFY2(!windows || (layer.key() != u"store"_s && layer.key() != u"text"_s),
                             qPrintable(path));
                    continue;
                }
                QVERIFY2(folder == layer.key() || layer->contains(folder) || folder == u"sys"_s ||
                             folder == u"unicode"_s || folder == u"cups"_s,
                         qPrintable(path + u" includes "_s + match.captured(0)));
            }
        }
    }
    QVERIFY(seen > 100);
}

void TestStructure::mocNamesAreAscii()
{
    static const QRegularExpression sınıf(u"class\\s+(\\S+)[^;{]*\\{\\s*Q_OBJECT"_s);
    int seen = 0;
    for (const QString& path : sources({u"app"_s, u"controls"_s, u"forms"_s, u"program"_s, u"tests"_s})) {
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

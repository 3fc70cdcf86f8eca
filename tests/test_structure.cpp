// What the compiler does not see: the direction of includes, and names that moc would spoil.
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class TestStructure : public QObject
{
    Q_OBJECT

private slots:
    void sources()
    {
        // Each folder may include itself and what is named behind it.
        const QMap<QString, QString> layers = {
            {u"base"_s, u""_s},
            {u"text"_s, u"base"_s},
            {u"document"_s, u"base text"_s},
            {u"store"_s, u"base text"_s},
            {u"system"_s, u"base text document"_s},
            {u"app"_s, u"base text document store system"_s},
            {u"controls"_s, u"base text document store system app"_s},
            {u"forms"_s, u"base text document store system app controls"_s},
            {u"program"_s, u"base text document store system app controls forms"_s},
            {u"tools"_s, u"base text document store system"_s}};
        static const QRegularExpression include(u"#include [\"<](\\w+)/([^\">]*)"_s),
            mocClass(u"class\\s+(\\S+)[^;{]*\\{\\s*Q_OBJECT"_s), letters(u"^[ -~]*$"_s);
        int includes = 0, classes = 0;
        const QStringList all = QStringList(layers.keys()) << u"tests"_s;
        for (const QString& layer : all) {
            QDirIterator files(QStringLiteral(SOURCE_FOLDER "/") + layer, {u"*.h"_s, u"*.cpp"_s},
                               QDir::Files);
            while (files.hasNext()) {
                const QString path = files.next(), text = read(path);
                for (const auto& found : include.globalMatch(text)) {
                    const QString name = found.captured(1);
                    ++includes;
                    const bool session =
                        layer == u"tools" && name == u"app" && found.captured(2) == u"Oturum.h";
                    QVERIFY2(!layers.contains(name) || name == layer || session ||
                                 layers.value(layer, all.join(u' ')).split(u' ').contains(name),
                             qPrintable(path + u" includes "_s + name));
                }
                for (const auto& found : mocClass.globalMatch(text)) {
                    ++classes;
                    QVERIFY2(letters.match(found.captured(1)).hasMatch(), qPrintable(path));
                }
            }
        }
        QVERIFY(includes > 100 && classes > 4);
    }

private:
    static QString read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
};

QTEST_APPLESS_MAIN(TestStructure)
#include "test_structure.moc"

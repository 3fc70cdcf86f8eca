// Printers, the window that chooses one, and the hand-over to the word processor.
#include "program_fixture.h"

#include "app/HataPolitikaları.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/WordAktarımı.h"
#include "document/RtfBelgesi.h"
#include "forms/YazıcıSeçmeFormu.h"
#include "system/Yazıcılar.h"
#include "system/ÇalışmaHatası.h"

#include <QClipboard>
#include <QLocalServer>
#include <QMimeData>
#include <QTest>

#include <chrono>
#include <filesystem>

using namespace Qt::StringLiterals;

class TestPrinting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void rtf();
    void handOver_data();
    void handOver();
    void handOverOfTheClipboard();
    void leftovers();
    void choice_data();
    void choice();
    void stuckService();

private:
    /// Puts a stand-in for the word processor on the path, which notes what it is given.
    void standIn(const QString& end, const char* shell = "/bin/sh")
    {
        QFile program(folder_->filePath(u"soffice"_s));
        QVERIFY(program.open(QIODevice::WriteOnly));
        const QString text = u"#!%1\ncd '%2'\nprintf '%s\n' \"$1\" \"$2\" >args\n"
                             "read_it() { cp \"$3\" copy; stat -c %a \"$3\" \"${3%/*}\" >>args; }\n%3\n"_s;
        program.write(text.arg(QString::fromLatin1(shell), folder_->path(), end).toUtf8());
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QByteArray noted(const QString& name) const
    {
        QFile file(folder_->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList temporary() const
    {
        return QDir(folder_->filePath(u"tmp"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    const QString temp_ = QDir::tempPath();
    std::unique_ptr<QTemporaryDir> folder_;
    QByteArray path_ = qgetenv("PATH");
    QLocalServer stuck_;
};

void TestPrinting::initTestCase()
{
    QVERIFY(stuck_.listen(u"%1/belgenar-test-%2"_s.arg(temp_).arg(QCoreApplication::applicationPid())));
    qputenv("CUPS_SERVER", QFile::encodeName(stuck_.fullServerName())); // connects and never answers
}

void TestPrinting::init()
{
    folder_ = std::make_unique<QTemporaryDir>(temp_ + u"/belgenar-test-XXXXXX"_s);
    QDir(folder_->path()).mkdir(u"tmp"_s);
    qputenv("TMPDIR", QFile::encodeName(folder_->filePath(u"tmp"_s)));
    qputenv("PATH", QFile::encodeName(folder_->path()) + ':' + path_);
}

void TestPrinting::rtf()
{
    const auto body = [](const QString& text) {
        const QByteArray document = RtfBelgesi(text);
        return document.startsWith("{\\rtf1") ? document.mid(RtfBelgesi({}).size() - 1) : QByteArray();
    };
    QCOMPARE(body({}), "}");
    QCOMPARE(body(u"aığİ{\\}"_s), "a\\u305?\\u287?\\u304?\\{\\\\\\}\\par}");
    QCOMPARE(body(u"a\nb\r\nc\rd\n"_s), "a\\par\nb\\par\nc\\par\nd\\par\n\\par}"); // breaks of all kinds
    QCOMPARE(body(u"\t \u00a0\uFFFD𝒜"_s), "\\tab  \\~\\u-3?\\u-10187?\\u-9060?\\par}");
    QCOMPARE(body(u"a"_s + QChar(u'\0') + QChar(0x1b) + u'b'), "ab\\par}");
}

void TestPrinting::handOver_data()
{
    QTest::addColumn<QString>("end"); // what the stand-in does
    QTest::addColumn<int>("number");  // of the error that is reported
    QTest::newRow("ends well") << u"read_it \"$@\""_s << 0;
    QTest::newRow("goes on") << u"read_it \"$@\"; sleep 20; echo x >ended"_s << 0;
    QTest::newRow("reads and fails") << u"read_it \"$@\"; exit 3"_s << 440;
    QTest::newRow("fails later") << u"sleep 0.5; exit 1"_s << 440;
    QTest::newRow("crashes") << u"kill -9 $$"_s << 440;
    QTest::newRow("can't be run") << QString() << 429;
}

void TestPrinting::handOver()
{
    QFETCH(QString, end);
    QFETCH(int, number);
    standIn(end, number == 429 ? "/no/such/shell" : "/bin/sh");
    KutuYanıtlayıcı box(KutuYanıtlayıcı::Yanıt::Tamam);
    WordeAktar([](WordBasic& word) { word.Insert(u"ığ\nson"_s); });
    QCOMPARE(noted(u"ended"_s), QByteArray()); // it was not waited for
    QCOMPARE(box.Sayı, number == 0 ? 0 : 1);
    if (number != 0) {
        const auto start =
            u"Aşağıdaki hata nedeniyle Word başlatılamadı!\n\nHata Kodu: %1\n\nHata "_s.arg(number);
        QCOMPARE(box.Metin.left(start.size()), start);
        QCOMPARE(temporary(), QStringList());
        return;
    }
    QCOMPARE(noted(u"args"_s), QByteArray("--writer\n-n\n600\n700\n"));
    QCOMPARE(noted(u"copy"_s), RtfBelgesi(u"ığ\nson"_s));
    QTRY_COMPARE_WITH_TIMEOUT(temporary(), QStringList(), BeklemeSınırı);
}

void TestPrinting::handOverOfTheClipboard()
{
    const QByteArray rtf("{\\rtf1\\ansi {\\b Ad}}");
    for (const bool formatted : {true, false}) {
        auto* content = new QMimeData;
        content->setText(u"düz"_s);
        content->setData(u"text/rtf"_s, formatted ? rtf : QByteArray("not RTF"));
        QGuiApplication::clipboard()->setMimeData(content);
        standIn(u"read_it \"$@\""_s);
        WordeAktar([](WordBasic& word) { word.EditPaste(); });
        QCOMPARE(noted(u"copy"_s), formatted ? rtf : RtfBelgesi(u"düz"_s));
    }
}

void TestPrinting::leftovers()
{
    standIn(u"read_it \"$@\""_s);
    const QDir tmp(folder_->filePath(u"tmp"_s));
    for (const QString& name : {u"belgenar-belge-eski"_s, u"belgenar-belge-yeni"_s, u"baska"_s})
        QVERIFY(tmp.mkpath(name + u"/x"_s));
    for (const QString& name : {u"belgenar-belge-eski"_s, u"baska"_s})
        std::filesystem::last_write_time(QFile::encodeName(tmp.filePath(name)).constData(),
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::minutes(3));
    WordeAktar([](WordBasic&) {});
    QVERIFY(!temporary().contains(u"belgenar-belge-eski"_s));
    QVERIFY(temporary().contains(u"belgenar-belge-yeni"_s) && temporary().contains(u"baska"_s));
}

void TestPrinting::choice_data()
{
    QTest::addColumn<int>("printers");
    QTest::addColumn<QString>("act");     // a button that is pressed, a key, or "" for the title bar
    QTest::addColumn<QString>("current"); // afterwards
    QTest::addColumn<bool>("cancelled");
    QTest::newRow("Tamam") << 3 << u"TamamDüğmesi"_s << u"c"_s << false;
    QTest::newRow("Enter") << 3 << u"Enter"_s << u"c"_s << false;
    QTest::newRow("İptal") << 3 << u"İptalDüğmesi"_s << u"b"_s << true;
    QTest::newRow("Esc") << 3 << u"Esc"_s << u"b"_s << true;
    QTest::newRow("title bar") << 3 << u""_s << u"b"_s << false;
    QTest::newRow("none to choose") << 0 << u"TamamDüğmesi"_s << u"b"_s << false;
    QTest::newRow("current one gone") << 1 << u"TamamDüğmesi"_s << u"b"_s << false;
}

void TestPrinting::choice()
{
    QFETCH(int, printers);
    QFETCH(QString, act);
    GeçerliYazıcı(u"b"_s);
    YazdırmaİptalEdildi = false;
    YazıcıSeçmeFormu form(
        QList<Yazıcı>({{u"a"_s, u"usb:1"_s}, {u"b"_s, {}}, {u"c"_s, u"ipp:3"_s}}).first(printers));
    const auto child = [&form](const QString& name) { return form.findChild<QWidget*>(name); };
    auto& list = *static_cast<AçılırListe*>(child(u"YazıcıAdlarıKutusu"_s));
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form, BeklemeSınırı));
    QCOMPARE(list.Text(), printers == 3 ? u"b"_s : QString());
    auto& port = *static_cast<MetinKutusu*>(child(u"BağlantıNoktasıKutusu"_s));
    QCOMPARE(port.Text(), QString()); // b has none, and another one's must not show
    if (printers == 3) {
        list.ListIndex(2);
        QCOMPARE(port.Text(), u"ipp:3"_s);
    }
    if (auto* button = qobject_cast<QPushButton*>(child(act)))
        button->click();
    else if (act.isEmpty())
        form.close();
    else
        QTest::keyClick(form.focusWidget(), act == u"Esc"_s ? Qt::Key_Escape : Qt::Key_Return);
    QTEST(GeçerliYazıcı(), "current");
    QTEST(YazdırmaİptalEdildi, "cancelled");
    QCOMPARE(form.isVisible(), printers < 3); // nothing was chosen
}

void TestPrinting::stuckService() // must not hold the program up for ever
{
    GeçerliYazıcı(u"b"_s);
    MetinYazdır({}, u"Liberation Sans"_s, 10, {}); // nothing to print: nobody is asked
    QVERIFY_THROWS_EXCEPTION(ÇalışmaHatası, MetinYazdır(u"x"_s, u"Liberation Sans"_s, 10, {}));
}

QTEST_MAIN(TestPrinting)
#include "test_system_printing.moc"

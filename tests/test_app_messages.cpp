// Every message of the program, brought up where users meet it: text, picture, buttons and place.
#include "program_fixture.h"

#include "app/HataBildirimi.h"
#include "app/PencereYeri.h"
#include "app/İletiKutusu.h"
#include "controls/AçılırListe.h"
#include "program/GirişModülü.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include <filesystem>

using namespace Qt::StringLiterals;
using Yanıt = KutuYanıtlayıcı::Yanıt;
using Steps = std::function<void()>;

namespace {

/// The name of the window that a box is centred over; empty for the screen.
QString under(const QMessageBox& box)
{
    const QRect place = ÇerçeveliYer(box);
    const auto over = [&place](const QRect& what) {
        return OrtalıYer(what, place.size()) == place.topLeft();
    };
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window != &box && window->isVisible() && window->objectName() != u"KarşılamaFormu"_s &&
            over(ÇerçeveliYer(*window)))
            return window->objectName();
    }
    return over(QGuiApplication::primaryScreen()->geometry()) ? QString() : u"?"_s;
}

/// Title, picture, buttons with * behind the default one, the window below, text.
QString told(const QMessageBox& box)
{
    static const QHash<int, QString> names = {
        {QMessageBox::Information, u"bilgi"_s}, {QMessageBox::Question, u"soru"_s},
        {QMessageBox::Warning, u"uyarı"_s},     {QMessageBox::Critical, u"kritik"_s},
        {QMessageBox::Ok, u"Tamam"_s},          {QMessageBox::Yes, u"Evet"_s},
        {QMessageBox::No, u"Hayır"_s}};
    QStringList parts = {box.windowTitle(), names[box.icon()]};
    for (QAbstractButton* button : box.buttons())
        parts += names[box.standardButton(button)] +
                 QString(static_cast<QPushButton*>(button)->isDefault() ? u"*"_s : QString());
    parts << under(box) << box.text();
    return box.textFormat() == Qt::PlainText ? parts.join(u'|') : u"markup"_s;
}

template<class T = QPushButton> T& child(QWidget& window, const QString& name)
{
    return *static_cast<T*>(window.findChild<QWidget*>(name));
}

} // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("PATH", QFile::encodeName(folder_.path())); // no word processor
        qputenv("CUPS_SERVER", "/nonexistent/sock");        // no printer
        t = std::make_unique<AnaFormDenemesi>(
            QList<Makale>{{u"ALİ KAYA"_s, u"ARI"_s, u"Arı bal yapar."_s}, {u"ZEKİ SU"_s, u"IŞIK"_s, u"y"_s}});
        AyarMetni(Ayarlar::TamEkran, u"0"_s); // at a place that isn't the middle of the screen
        AyarMetni(Ayarlar::Sol, u"1500"_s);
        t->Göster();
    }
    void cleanupTestCase() { t.reset(); }
    void messages_data();
    void messages()
    {
        QFETCH(Steps, bring);
        t->Form->ÖneGetir();
        QTRY_VERIFY_WITH_TIMEOUT(t->Form->isActiveWindow(), BeklemeSınırı);
        t->Yazarlar().ListIndex(1);
        t->Yazarlar().ListIndex(0);
        QString seen;
        KutuYanıtlayıcı closed(Yanıt::Kapat, [&seen](QMessageBox& box) { seen = told(box); });
        bring();
        QTEST(seen, "expected");
        QCOMPARE(closed.Sayı, 1);
        QCOMPARE(Makaleler(*Veritabanı).size(), 2);
    }
    void startRefused();
    void composing()
    {
        QCOMPARE(HataMetni(İleti::ProgramDevamEdemiyor, Hata(u"%1\nx"_s, 3026)),
                 u"Aşağıdaki hata nedeniyle program devam edemiyor!\r\n\r\nHata Kodu: 3026\r\n\r\n"
                 u"Hata Mesajı: %1\nx"_s);
        QCOMPARE(OrtalıYer({10, 10, 20, 20}, {40, 40}), QPoint(0, 0));
        QCOMPARE(OrtalıYer({0, 0, 101, 103}, {100, 100}), QPoint(0, 2)); // halves go to the even number
    }

private:
    void choose(const QString& entry) { t->Form->findChild<QAction*>(entry)->trigger(); }
    void seek(const QString& word)
    {
        t->Bul<MetinKutusu>(u"BulKutusu"_s).Text(word);
        t->Bul<QPushButton>(u"BulButonu"_s).click();
    }
    /// In a window beside the main one.
    void inWindow(const QString& entry, const std::function<void(QDialog&)>& user)
    {
        QVERIFY(PencereAç([&] { choose(entry); },
                          [&](QDialog& w) {
                              // Until then it would be put back where it belongs.
                              QTRY_VERIFY_WITH_TIMEOUT(!w.findChild<QObject*>(u"ÇerçeveBekleyen"_s),
                                                       BeklemeSınırı);
                              w.move(3, 5);
                              user(w);
                          }));
    }
    /// Leaves the date of an article that is being added, and saves it where the date asks for nothing.
    Steps adding(const Makale& article)
    {
        return [this, article] {
            inWindow(u"MakaleEkleMenüsü"_s, [&article](QDialog& w) {
                child(w, u"EkleKaydetButonu"_s).click();
                child<AçılırListe>(w, u"YazarAdıListesi"_s).Text(article.Yazar);
                child<MetinKutusu>(w, u"MakaleBaşlığıKutusu"_s).Text(article.Başlık);
                child<MetinKutusu>(w, u"YayımYeriKutusu"_s).Text(article.Yer);
                auto& date = child<MetinKutusu>(w, u"YayımTarihiKutusu"_s);
                date.setFocus();
                date.Text(article.Tarih);
                QTest::keyClick(&date, Qt::Key_Tab);
                if (article.Tarih.isEmpty())
                    child(w, u"EkleKaydetButonu"_s).click();
            });
        };
    }
    Steps deleting(const std::function<void(ListeKutusu&)>& before)
    {
        return [this, before] {
            inWindow(u"MakaleSilMenüsü"_s, [&before](QDialog& w) {
                before(child<ListeKutusu>(w, u"MakaleListesi"_s));
                child(w, u"SilButonu"_s).click();
            });
        };
    }

    QTemporaryDir folder_;
    std::unique_ptr<AnaFormDenemesi> t;
};

void TestMessages::messages_data()
{
    QTest::addColumn<Steps>("bring");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QString& expected, const Steps& bring) {
        QTest::newRow(name) << bring << u"Belgenar|"_s + expected;
    };
    const auto tell = [&](const char* name, const QString& window, const QString& text, const Steps& bring) {
        row(name, u"bilgi|Tamam*|"_s + window + u'|' + text, bring);
    };
    const QString ana = u"AnaForm"_s, ekle = u"EkleFormu"_s, sil = u"SilFormu"_s, two = u"ALİ SU"_s,
                  a = u"A"_s, leave = u"|Programdan çıkmak istediğinizden emin misiniz?"_s,
                  noWord = u"Bilgisayarınızda \"Microsoft Word\" kurulu olmadığı için işlem yapılamıyor!"_s,
                  noText = u"Makale metni, boş bırakılamaz."_s;
    row("200", u"soru|Evet*|Hayır|AnaForm"_s + leave,
        [this] { t->Bul<QPushButton>(u"ÇıkışButonu"_s).click(); });
    row("200, minimised", u"soru|Evet*|Hayır|"_s + leave, [this] {
        t->Form->setWindowState(Qt::WindowMinimized);
        t->Form->Kapat(KapanışNedeni::OturumSonu);
    });
    tell("205", ana, u"Lütfen listeden bir makale seçiniz!"_s, [this] {
        t->Metin().Text({});
        seek(u"y"_s); // an empty pane comes before the length of the word
        QCOMPARE(t->Form->focusWidget(), &t->Makaleler());
    });
    tell("210", ana, u"Aradığınız sözcük metin içinde bulunamadı!"_s, [this] {
        seek(u"yoktur"_s);
        QCOMPARE(t->Form->focusWidget()->objectName(), u"BulKutusu"_s);
    });
    tell("230", ana, noWord, [this] { choose(u"WordeYapıştırMenüsü"_s); });
    tell("230, reference", u"ReferansFormu"_s, noWord, [this] {
        inWindow(u"ReferansOluşturMenüsü"_s, [](QDialog& w) { child(w, u"WordeYapıştırButonu"_s).click(); });
    });
    row("235",
        u"kritik|Tamam*|AnaForm|Aşağıdaki hata nedeniyle Word başlatılamadı!\n\nHata Kodu: 440\n\n"
        u"Hata Mesajı: Kelime işlemci belgeyi göstermeden kapandı. Çıkış durumu: 3"_s,
        [this] {
            const QString program = folder_.filePath(u"libreoffice"_s);
            DosyaYaz(program, "#!/bin/sh\nexit 3\n");
            QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
            choose(u"WordeYapıştırMenüsü"_s);
            QFile::remove(program);
        });
    row("no printer",
        u"uyarı|Tamam*||Bilgisayarınızda yüklü bir YAZICI yok!\n\nLütfen, bir yazıcı yükleyip tekrar "
        u"deneyiniz."_s,
        [this] { choose(u"YazdırMenüsü"_s); });
    tell("390", ekle, u"Yazar adı, boş bırakılamaz."_s, adding({{}, {}, {}, {}, {}}));
    tell("393", ekle, u"Yazar adı, tek sözcük olamaz!"_s, adding({a, {}, {}, {}, {}}));
    tell("395", ekle, u"Makale başlığı, boş bırakılamaz."_s, adding({two, {}, {}, {}, {}}));
    tell("400", ekle, u"Yayım yeri, boş bırakılamaz."_s, adding({two, a, {}, {}, {}}));
    tell("405", ekle, noText, adding({two, a, {}, a, {}}));
    row("430",
        u"soru|Evet*|Hayır|EkleFormu|Lütfen, tarihi doğru biçimde giriniz. Örneğin, \"Şubat 2003\" veya "
        u"\"01 "
        u"Şubat 2003\" gibi… \nEğer girdiğiniz biçimi korumak istiyorsanız lütfen, \"Evet\"i tıklayınız!"_s,
        adding({{}, {}, {}, {}, u"bahar"_s}));
    tell("460", sil, u"Lütfen, silmek istediğiniz makaleyi listeden seçiniz!"_s,
         deleting([](ListeKutusu& list) { list.ListIndex(-1); }));
    tell("465", sil, u"Listede en az (1) makale kalması gerekiyor!"_s,
         deleting([](ListeKutusu& list) { list.RemoveItem(1); }));
    row("470",
        u"soru|Evet|Hayır*|SilFormu|Silme işlemi geri alınamaz! Seçtiğiniz makaleyi silmek "
        u"istediğinizden "
        u"emin misiniz?"_s,
        deleting([](ListeKutusu&) {}));
    tell("550", ana, u"Lütfen, değişikilik yapmak istediğiniz makaleyi listeden seçeniz!"_s, [this] {
        t->Makaleler().ListIndex(-1);
        choose(u"MakeleDeğiştirMenüsü"_s);
        QCOMPARE(t->Form->focusWidget(), &t->Makaleler());
    });
}

// The whole start, in a process of its own: what refuses it ends the program.
void TestMessages::startRefused()
{
    const auto refusal = [](const QString& missing) {
        const QTemporaryDir folder(QCoreApplication::applicationDirPath() + u"/baslangic-XXXXXX"_s);
        const QString program = folder.filePath(u"belgenar"_s);
        std::filesystem::create_hard_link(qUtf8Printable(QCoreApplication::applicationFilePath()),
                                          qUtf8Printable(program));
        KitaplıkKur(folder.path() + u'/');
        std::optional<Açılış> other;
        if (missing.isEmpty())
            other.emplace(folder.path() + u'/');
        else
            QFile::remove(folder.filePath(missing));
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
        QProcess start;
        start.start(program, {u"--start"_s});
        start.waitForFinished(BeklemeSınırı);
        const QString said = QString::fromUtf8(start.readAllStandardOutput()).replace(folder.path(), u"…"_s);
        return said + QString::number(start.exitCode());
    };
    const QString box = u"Belgenar|kritik|Tamam*||"_s,
                  end = u" ulaşılamadığı için program başlayamıyor. Lütfen, kontrol edip tekrar deneyin.1"_s;
    QCOMPARE(refusal(u"Makale.mde"_s), box + u"Veritabanı dosyanıza"_s + end);             // 40
    QCOMPARE(refusal(u"Makale.tps"_s), box + u"Program için gerekli bir dosyaya"_s + end); // 45
    QCOMPARE(refusal({}), box +
                              u"Aşağıdaki hata nedeniyle program devam edemiyor!\n\nHata Kodu: 3045\n\nHata "
                              u"Mesajı: Dosya kullanımda; başka bir program onu açık tutuyor. (…)1"_s);
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "--start") == 0) {
        const KutuYanıtlayıcı closed(Yanıt::Kapat,
                                     [](QMessageBox& box) { std::printf("%s", qUtf8Printable(told(box))); });
        return SubMain(app);
    }
    const PencereYerleştirici placer(app);
    TestMessages tests;
    return QTest::qExec(&tests, argc, argv);
}
#include "test_app_messages.moc"

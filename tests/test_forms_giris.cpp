// The windows that add, change and delete articles.
#include "DenemeProgramı.h"

#include "app/Ayarlar.h"
#include "app/Görünüm.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "controls/AçılırListe.h"
#include "store/Bağlantı.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using Yanıt = KutuYanıtlayıcı::Yanıt;

namespace {

const QString TarihSorusu =
    u"Lütfen, tarihi doğru biçimde giriniz. Örneğin, \"Şubat 2003\" veya \"01 Şubat 2003\" gibi… \n"
    u"Eğer girdiğiniz biçimi korumak istiyorsanız lütfen, \"Evet\"i tıklayınız!"_s;

const QList<Makale> Örnek = {
    {u"ALİ KAYA"_s, u"ZEYTİN"_s, u"Deniz kıyısında"_s},
    {u"ALİ KAYA"_s, u"ARI"_s, u"Arı bal yapar."_s, u"İzmir"_s, u""_s},
    {u"ZEKİ SU"_s, u"IŞIK"_s, u"Işık hızlıdır."_s},
};

/// A modal window while it stands.
struct Pencere
{
    QDialog& Kutu;

    template<class T = QWidget> T& Bul(const QString& ad)
    {
        return *static_cast<T*>(Kutu.findChild<QWidget*>(ad));
    }
    AçılırListe& Yazar() { return Bul<AçılırListe>(u"YazarAdıListesi"_s); }
    MetinKutusu& Kutusu(const QString& ad) { return Bul<MetinKutusu>(ad); }
    MetinKutusu& Başlık() { return Kutusu(u"MakaleBaşlığıKutusu"_s); }
    MetinKutusu& Yer() { return Kutusu(u"YayımYeriKutusu"_s); }
    MetinKutusu& Tarih() { return Kutusu(u"YayımTarihiKutusu"_s); }
    ZenginMetinKutusu& Metin() { return Bul<ZenginMetinKutusu>(u"MakaleMetniKutusu"_s); }
    ListeKutusu& Liste() { return Bul<ListeKutusu>(u"MakaleListesi"_s); }
    QPushButton& Düğmesi(const QString& ad) { return Bul<QPushButton>(ad); }
    QString Etiket(const QString& ad) { return Bul<QLabel>(ad).text(); }
    QString Odak() const { return Kutu.focusWidget()->objectName(); }
    /// Presses as the mouse does, through the window.
    void Bas(QWidget& kontrol)
    {
        QTest::mouseClick(Kutu.windowHandle(), Qt::LeftButton, {},
                          kontrol.mapTo(&Kutu, kontrol.rect().center()));
    }
    void Bas(const QString& düğme) { Bas(Düğmesi(düğme)); }
    /// What a window manager does when a box above the window has gone.
    void Etkinleş()
    {
        Kutu.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Kutu, BeklemeSınırı));
    }
    void Doldur(const Makale& makale)
    {
        Yazar().Text(makale.Yazar);
        Başlık().Text(makale.Başlık);
        Yer().Text(makale.Yer);
        Tarih().Text(makale.Tarih);
        Metin().Text(makale.Metin);
    }
};

/// Chooses a file in the next open dialog, or cancels it; keeps the folder that it began in.
struct DosyaSeçici
{
    explicit DosyaSeçici(const QString& yol)
    {
        QObject::connect(&Saat, &QTimer::timeout, &Saat, [this, yol] {
            auto* kutu = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!kutu || !kutu->isVisible())
                return;
            if (Klasör.isEmpty()) {
                Klasör = kutu->directory().absolutePath();
                Süzgeçler = kutu->nameFilters();
                kutu->selectNameFilter(Süzgeçler[yol.endsWith(u".rtf"_s)]);
            }
            if (yol.isEmpty()) {
                kutu->reject();
                return;
            }
            // Until the folder has been read the button is disabled: the next tick tries again.
            auto* ad = kutu->findChild<QLineEdit*>(u"fileNameEdit"_s);
            ad->clear();
            ad->setText(yol);
            kutu->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
        });
        Saat.start(20);
    }
    QTimer Saat;
    QString Klasör;
    QStringList Süzgeçler;
};

} // namespace

class TestEntryWindows : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        t = std::make_unique<AnaFormDenemesi>(Örnek);
        t->Göster();
    }
    void cleanup() { t.reset(); }
    void addStates();
    void addSavesAndGoesOn();
    void typedKeysAndLeaving();
    void missingFields_data();
    void missingFields();
    void dateQuestion_data();
    void dateQuestion();
    void refusedDateStopsTheClick();
    void pasteAndLimits();
    void files();
    void unreadableFileLeavesTheText();
    void failedSaveKeepsWhatWasTyped();
    void closingDuringEntry();
    void change();
    void changeCancelledOrNothingSelected();
    void changeKeepsLongValues();
    void changeAmongResults();
    void sameTitles();
    void deleteUntilOneIsLeft();
    void deleteFinds();

private:
    /// Opens a window by its menu entry and runs the user's part in it; what is still open then is closed.
    void inWindow(const QString& menu, const std::function<void(Pencere)>& user)
    {
        QVERIFY(PencereAç([&] { t->Form->findChild<QAction*>(menu)->trigger(); },
                          [&](QDialog& box) { user({box}); }));
    }
    void adding(const std::function<void(Pencere)>& user)
    {
        inWindow(u"MakaleEkleMenüsü"_s, [&](Pencere p) {
            p.Bas(u"EkleKaydetButonu"_s);
            user(p);
        });
    }
    void changing(const std::function<void(Pencere)>& user) { inWindow(u"MakeleDeğiştirMenüsü"_s, user); }
    void deleting(const std::function<void(Pencere)>& user) { inWindow(u"MakaleSilMenüsü"_s, user); }
    static QList<Makale> stored() { return Makaleler(*Veritabanı); }

    std::unique_ptr<AnaFormDenemesi> t;
};

void TestEntryWindows::addStates()
{
    QApplication::clipboard()->setText(u"pano"_s);
    const QStringList fields = {u"YazarAdıListesi"_s, u"MakaleBaşlığıKutusu"_s, u"YayımYeriKutusu"_s,
                                u"YayımTarihiKutusu"_s, u"MakaleMetniKutusu"_s};
    const auto state = [&](Pencere p, bool entry) {
        for (const QString& field : fields) {
            QCOMPARE(p.Bul(field).isEnabled(), entry);
            QCOMPARE(p.Bul(field).palette().color(QPalette::Base),
                     p.Kutu.palette().color(entry ? QPalette::Base : QPalette::Window));
        }
        QCOMPARE(p.Düğmesi(u"EkleKaydetButonu"_s).text(), entry ? u"Kayd&et"_s : u"Makale &Ekle"_s);
        QCOMPARE(p.Düğmesi(u"İptalKapatButonu"_s).text(), entry ? u"İptal"_s : u"Kapat"_s);
        QCOMPARE(p.Düğmesi(u"DosyaYükleButonu"_s).isEnabled(), entry);
        QCOMPARE(p.Düğmesi(u"YapıştırButonu"_s).isEnabled(), entry);
    };
    inWindow(u"MakaleEkleMenüsü"_s, [&](Pencere p) {
        QCOMPARE(p.Kutu.windowTitle(), u"Listeye Makale Ekle..."_s);
        state(p, false);
        QCOMPARE(p.Yazar().ListCount(), 2);
        QCOMPARE(p.Yazar().Text(), QString());
        p.Bas(u"EkleKaydetButonu"_s);
        state(p, true);
        QCOMPARE(p.Odak(), u"YazarAdıListesi"_s);
        QCOMPARE(p.Metin().FontSize(), 8);
        p.Doldur(Örnek[0]);
        p.Bas(u"İptalKapatButonu"_s);
        state(p, false);
        QCOMPARE(p.Metin().Text() + p.Yazar().Text() + p.Tarih().Text(), QString());
        QApplication::clipboard()->clear();
        p.Bas(u"EkleKaydetButonu"_s);
        QVERIFY(!p.Düğmesi(u"YapıştırButonu"_s).isEnabled());
        p.Bas(u"İptalKapatButonu"_s);
        p.Bas(u"İptalKapatButonu"_s);
        QVERIFY(!p.Kutu.isVisible());
    });
    QCOMPARE(stored(), Örnek);
}

void TestEntryWindows::addSavesAndGoesOn()
{
    const Makale first = {u"YENİ YAZAR"_s, u"İLK"_s, u"bir\niki\u00a0üç\n\tson"_s, u"Bursa"_s, u""_s};
    const Makale second = {u"ALİ KAYA"_s, u"İLK"_s, u"x"_s, u"Van"_s, u"2003 Bahar"_s};
    adding([&](Pencere p) {
        p.Doldur(first);
        p.Bas(u"EkleKaydetButonu"_s);
        QVERIFY(!p.Yazar().isEnabled());
        QCOMPARE(p.Başlık().Text() + p.Metin().Text(), QString());
        QCOMPARE(stored().last(), first);
        QCOMPARE(t->Yazarlar().Item(1), first.Yazar);
        QCOMPARE(t->Etiket(u"ToplamYazarSayısıEtiketi"_s), u"Toplam: 3"_s);
        QCOMPARE(p.Yazar().ListCount(), 2); // as it was when the window opened
        p.Bas(u"EkleKaydetButonu"_s);
        p.Doldur(second);
        p.Bas(u"EkleKaydetButonu"_s);
    });
    QCOMPARE(stored(), Örnek + QList({first, second}));
}

void TestEntryWindows::typedKeysAndLeaving()
{
    adding([&](Pencere p) {
        const auto blue = [&](int label) {
            return p.Bul<QLabel>(u"Etiket%1"_s.arg(label)).palette().color(QPalette::WindowText) ==
                   QColor(Qt::blue);
        };
        QTRY_VERIFY_WITH_TIMEOUT(blue(0), BeklemeSınırı);
        Yaz(p.Yazar(), u" ali ığdır \r"_s);
        QCOMPARE(p.Yazar().Text(), u"ALİ IĞDIR"_s);
        QCOMPARE(p.Odak(), u"MakaleBaşlığıKutusu"_s);
        QVERIFY(blue(1) && !blue(0));
        Yaz(p.Başlık(), u"türk'ün  \r"_s);
        QCOMPARE(p.Başlık().Text(), u"TÜRK´ÜN"_s);
        Yaz(p.Yer(), u" istanbul ili'\r"_s);
        QCOMPARE(p.Yer().Text(), u"İstanbul İli´"_s);
        Yaz(p.Tarih(), u" şubat 2003 \r"_s);
        QCOMPARE(p.Tarih().Text(), u"Şubat 2003"_s);
        QCOMPARE(p.Odak(), u"MakaleMetniKutusu"_s);
        Yaz(p.Metin(), u"  o'n"_s);
        QTest::keyClick(&p.Metin(), Qt::Key_Return);
        Yaz(p.Metin(), u" e "_s);
        QTest::keyClick(&p.Metin(), Qt::Key_Backtab);
        QCOMPARE(p.Metin().Text(), u"o'n\n e"_s);
        QTRY_COMPARE_WITH_TIMEOUT(p.Tarih().selectedText(), u"Şubat 2003"_s, BeklemeSınırı);
        p.Yazar().setFocus();
        p.Yazar().lineEdit()->setText(u"o'neil\tx\u2029\u00ad😀"_s + QChar(0xd83d)); // as pasted
        QTest::keyClick(&p.Yazar(), Qt::Key_Tab);
        QCOMPARE(p.Yazar().Text(), u"o'neil x \u00ad😀"_s);
    });
}

void TestEntryWindows::missingFields_data()
{
    QTest::addColumn<Makale>("article");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("field");
    const Makale full = Örnek[0];
    const auto row = [&](const char* name, QString Makale::*field, const QString& value,
                         const QString& message, const QString& focus) {
        Makale changed = full;
        changed.*field = value;
        QTest::newRow(name) << changed << message << focus;
    };
    const QString author = u"YazarAdıListesi"_s;
    row("author", &Makale::Yazar, u""_s, u"Yazar adı, boş bırakılamaz."_s, author);
    row("one word", &Makale::Yazar, u"ALİ"_s, u"Yazar adı, tek sözcük olamaz!"_s, author);
    row("one word and a hard blank", &Makale::Yazar, u"ALİ\u00a0SU"_s, u"Yazar adı, tek sözcük olamaz!"_s,
        author);
    row("title", &Makale::Başlık, u""_s, u"Makale başlığı, boş bırakılamaz."_s, u"MakaleBaşlığıKutusu"_s);
    row("place", &Makale::Yer, u""_s, u"Yayım yeri, boş bırakılamaz."_s, u"YayımYeriKutusu"_s);
    row("text", &Makale::Metin, u""_s, u"Makale metni, boş bırakılamaz."_s, u"MakaleMetniKutusu"_s);
    QTest::newRow("all") << Makale{} << u"Yazar adı, boş bırakılamaz."_s << author;
}

void TestEntryWindows::missingFields()
{
    QFETCH(Makale, article);
    QFETCH(QString, message);
    QFETCH(QString, field);
    const auto refused = [&](Pencere p, const QString& save) {
        p.Doldur(article);
        KutuYanıtlayıcı box(Yanıt::Tamam);
        p.Bas(save);
        QCOMPARE(box.Metin, message);
        QCOMPARE(p.Odak(), field);
        QVERIFY(p.Kutu.isVisible() && p.Yazar().isEnabled());
    };
    adding([&](Pencere p) { refused(p, u"EkleKaydetButonu"_s); });
    changing([&](Pencere p) { refused(p, u"KaydetDüğmesi"_s); });
    QCOMPARE(stored(), Örnek);
}

void TestEntryWindows::dateQuestion_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Yanıt>("answer");
    QTest::addColumn<int>("questions");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<bool>("leaves");
    QTest::newRow("none") << u""_s << Yanıt::Hayır << 0 << u""_s << true;
    QTest::newRow("date") << u" 01 şubat 2003 "_s << Yanıt::Hayır << 0 << u"01 Şubat 2003"_s << true;
    QTest::newRow("yes") << u"2003 bahar"_s << Yanıt::Evet << 1 << u"2003 Bahar"_s << true;
    QTest::newRow("no") << u" 2003 bahar "_s << Yanıt::Hayır << 1 << u"2003 bahar"_s << false;
    QTest::newRow("closed") << u"30 şubat 2003"_s << Yanıt::Kapat << 1 << u"30 şubat 2003"_s << false;
}

void TestEntryWindows::dateQuestion()
{
    QFETCH(QString, typed);
    QFETCH(Yanıt, answer);
    adding([&](Pencere p) {
        p.Tarih().setFocus();
        Yaz(p.Tarih(), typed);
        KutuYanıtlayıcı box(answer);
        QTest::keyClick(&p.Tarih(), Qt::Key_Tab);
        QTEST(box.Sayı, "questions");
        QTEST(p.Odak() == u"MakaleMetniKutusu"_s, "leaves");
        p.Etkinleş();
        QTEST(p.Tarih().Text(), "kept");
        if (box.Sayı)
            QCOMPARE(box.Metin, TarihSorusu);
    });
}

void TestEntryWindows::refusedDateStopsTheClick()
{
    Makale article = Örnek[0];
    article.Tarih = u"bahar"_s;
    adding([&](Pencere p) {
        p.Doldur(article);
        p.Tarih().setFocus();
        {
            KutuYanıtlayıcı box(Yanıt::Hayır);
            p.Bas(u"EkleKaydetButonu"_s);
            p.Etkinleş();
            QTest::keyClick(&p.Tarih(), Qt::Key_E, Qt::AltModifier);
            p.Etkinleş();
            p.Bas(*p.Metin().viewport());
            p.Etkinleş();
            QCOMPARE(box.Sayı, 3);
            QCOMPARE(p.Odak(), u"YayımTarihiKutusu"_s);
        }
        // The mnemonic's click would come late, and hold the button down until then.
        QTRY_VERIFY_WITH_TIMEOUT(!p.Düğmesi(u"EkleKaydetButonu"_s).isDown(), BeklemeSınırı);
        QCOMPARE(stored(), Örnek);
        KutuYanıtlayıcı box(Yanıt::Evet);
        p.Bas(u"EkleKaydetButonu"_s);
        QCOMPARE(box.Sayı, 1);
        article.Tarih = u"Bahar"_s;
        QCOMPARE(stored().last(), article);
    });
}

void TestEntryWindows::pasteAndLimits()
{
    QApplication::clipboard()->setText(QString(300, u'a'));
    adding([&](Pencere p) {
        for (auto [box, limit] : {std::pair(&p.Başlık(), 255), {&p.Yer(), 50}, {&p.Tarih(), 20}}) {
            box->paste();
            QCOMPARE(box->Text().size(), limit);
        }
        p.Metin().Text(u"önceki"_s);
        QApplication::clipboard()->setImage(QImage(8, 8, QImage::Format_RGB32));
        p.Bas(u"YapıştırButonu"_s);
        QCOMPARE(p.Metin().Text(), u"önceki"_s);
        QApplication::clipboard()->setText(u"yeni\r\nmetin"_s + QChar(0) + u"\u00a0!"_s);
        p.Bas(u"YapıştırButonu"_s);
        QCOMPARE(p.Metin().Text(), u"yeni\nmetin\u00a0!"_s);
        p.Metin().undo();
        QCOMPARE(p.Metin().Text(), u"önceki"_s);
    });
}

void TestEntryWindows::files()
{
    QTemporaryDir folder;
    const QString plain = folder.filePath(u"düz.txt"_s), rich = folder.filePath(u"zengin.rtf"_s);
    DosyaYaz(plain, u"birinci\r\nikinci ışık"_s.toUtf8());
    DosyaYaz(rich, R"({\rtf1\ansi\ansicpg1254  {\b kal\'fdn} {\i e\u287?ik}\par son })");
    adding([&](Pencere p) {
        {
            DosyaSeçici cancelled({});
            p.Bas(u"DosyaYükleButonu"_s);
            QCOMPARE(cancelled.Süzgeçler,
                     QStringList({u"Metin Dosyaları (*.txt)"_s, u"Zengin Metin Biçimi (*.rtf)"_s}));
        }
        QCOMPARE(AyarOku(Ayarlar::SonAçılan, u"yok"_s), u"yok"_s);
        DosyaSeçici first(plain);
        p.Bas(u"DosyaYükleButonu"_s);
        QCOMPARE(p.Metin().Text(), u"birinci\nikinci ışık"_s);
        QCOMPARE(AyarOku(Ayarlar::SonAçılan), plain);
    });
    changing([&](Pencere p) {
        DosyaSeçici second(rich);
        p.Bas(u"DosyaYükleDüğmesi"_s);
        QCOMPARE(second.Klasör, folder.path());
        QCOMPARE(p.Metin().Text(), u" kalın eğik\nson "_s);
        QTextCursor cursor(p.Metin().document());
        cursor.setPosition(3);
        QCOMPARE(cursor.charFormat().fontWeight(), int(QFont::Bold));
        p.Etkinleş();
        p.Metin().setFocus();
        p.Yazar().setFocus();
        QCOMPARE(p.Metin().Text(), u"kalın eğik\nson"_s);
        cursor.setPosition(3);
        QVERIFY(cursor.charFormat().fontWeight() != QFont::Bold);
    });
}

void TestEntryWindows::unreadableFileLeavesTheText()
{
    QTemporaryDir folder;
    const QString binary = folder.filePath(u"resim.txt"_s);
    DosyaYaz(binary, QByteArray("\x89PNG\0\0\0\r", 8).repeated(20));
    adding([&](Pencere p) {
        p.Metin().Text(u"önceki"_s);
        DosyaSeçici chosen(binary);
        KutuYanıtlayıcı box(Yanıt::Tamam);
        p.Bas(u"DosyaYükleButonu"_s);
        QVERIFY2(box.Metin.contains(u"resim.txt"_s), qPrintable(box.Metin));
        QCOMPARE(p.Metin().Text(), u"önceki"_s);
        QCOMPARE(AyarOku(Ayarlar::SonAçılan), QString());
    });
}

void TestEntryWindows::failedSaveKeepsWhatWasTyped()
{
    const Makale article = {u"YENİ YAZAR"_s, u"İLK"_s, u"metin"_s};
    const auto fails = [&](Pencere p, const QString& save) {
        p.Doldur(article);
        const auto other = DosyaBağlantısı(t->Program.Klasör());
        {
            İşlem lock(*other);
            p.Bas(save);
        }
        QVERIFY(p.Kutu.isVisible());
        QCOMPARE(p.Metin().Text(), article.Metin);
        QCOMPARE(stored(), Örnek);
        p.Bas(save);
    };
    changing([&](Pencere p) { fails(p, u"KaydetDüğmesi"_s); });
    QCOMPARE(stored().size(), Örnek.size());
    QVERIFY(stored().contains(article));
}

void TestEntryWindows::closingDuringEntry()
{
    adding([&](Pencere p) {
        p.Doldur(Örnek[0]);
        p.Kutu.close();
        QTest::keyClick(&p.Metin(), Qt::Key_Escape);
        for (const KapanışNedeni reason : {KapanışNedeni::OturumSonu, KapanışNedeni::GörevYöneticisi})
            QVERIFY(!t->Form->Kapat(reason));
        QVERIFY(p.Kutu.isVisible() && Veritabanı);
        QCOMPARE(p.Metin().Text(), Örnek[0].Metin);
        p.Bas(u"İptalKapatButonu"_s);
        p.Kutu.close();
        QVERIFY(!p.Kutu.isVisible());
    });
}

void TestEntryWindows::change()
{
    t->Yazarlar().ListIndex(0);
    t->Makaleler().Text(u"arı"_s);
    changing([&](Pencere p) {
        QCOMPARE(p.Kutu.windowTitle(), u"Makaleyi Değiştir..."_s);
        QCOMPARE(p.Düğmesi(u"VazgeçDüğmesi"_s).text(), u"Vazgeç"_s);
        QCOMPARE(p.Yazar().Text(), u"ALİ KAYA"_s);
        QCOMPARE(p.Yer().Text() + p.Tarih().Text(), u"İzmir"_s);
        QCOMPARE(p.Metin().Text(), u"Arı bal yapar."_s);
        p.Başlık().Text(u"BAL"_s);
        p.Yazar().Text(u"ZEKİ SU"_s);
        p.Bas(u"KaydetDüğmesi"_s);
        QVERIFY(!p.Kutu.isVisible());
    });
    QCOMPARE(stored()[1], (Makale{u"ZEKİ SU"_s, u"BAL"_s, u"Arı bal yapar."_s, u"İzmir"_s, u""_s}));
    QCOMPARE(t->Yazarlar().Text(), u"ZEKİ SU"_s);
    QCOMPARE(t->Makaleler().Text(), u"BAL"_s);
    QCOMPARE(t->Metin().Text(), u"Arı bal yapar."_s);
}

void TestEntryWindows::changeCancelledOrNothingSelected()
{
    changing([&](Pencere p) {
        p.Başlık().Text(u"BAŞKA"_s);
        QTest::keyClick(&p.Başlık(), Qt::Key_Escape);
        QVERIFY(p.Kutu.isVisible());
        QCOMPARE(p.Odak(), u"VazgeçDüğmesi"_s);
        p.Bas(u"VazgeçDüğmesi"_s);
    });
    QCOMPARE(stored(), Örnek);
    QCOMPARE(t->Makaleler().Text(), u"ARI"_s);
    t->Makaleler().ListIndex(-1);
    KutuYanıtlayıcı box(Yanıt::Tamam);
    t->Form->findChild<QAction*>(u"MakeleDeğiştirMenüsü"_s)->trigger();
    QCOMPARE(box.Metin, u"Lütfen, değişikilik yapmak istediğiniz makaleyi listeden seçeniz!"_s);
    QCOMPARE(t->Form->focusWidget()->objectName(), u"MakaleListesi"_s);
}

void TestEntryWindows::changeKeepsLongValues()
{
    const Makale imported = {u"ALİ KAYA"_s, QString(400, u'Ğ'), u"m"_s, QString(90, u'y'), QString(60, u't')};
    Ekle(*Veritabanı, {imported});
    t->Yazarlar().ListIndex(1);
    t->Yazarlar().ListIndex(0);
    t->Makaleler().Text(imported.Başlık);
    changing([&](Pencere p) {
        p.Yer().setFocus(); // comes out in proper case
        p.Yazar().setFocus();
        p.Bas(u"KaydetDüğmesi"_s);
    });
    QCOMPARE(stored().last().Başlık, imported.Başlık);
    QCOMPARE(stored().last().Yer.size(), imported.Yer.size());
    QCOMPARE(stored().last().Tarih, imported.Tarih);
}

void TestEntryWindows::changeAmongResults()
{
    t->Bul<MetinKutusu>(u"BulKutusu"_s).Text(u"ışık"_s);
    t->Bul<QPushButton>(u"TümündeBulButonu"_s).click();
    QCOMPARE(t->Makaleler().Text(), u"IŞIK"_s);
    changing([&](Pencere p) {
        p.Başlık().Text(u"IŞIN"_s);
        p.Bas(u"KaydetDüğmesi"_s);
    });
    QCOMPARE(t->Makaleler().Text(), u"IŞIN"_s);
    QCOMPARE(t->Makaleler().ListCount(), 1);
    QCOMPARE(t->Yazarlar().Text(), u"ZEKİ SU"_s);
}

void TestEntryWindows::sameTitles()
{
    Ekle(*Veritabanı, {{u"ALİ KAYA"_s, u"ARI"_s, u"ikinci"_s}});
    t->Yazarlar().ListIndex(1);
    t->Yazarlar().ListIndex(0);
    t->Makaleler().ListIndex(1); // the second one of that title
    changing([&](Pencere p) {
        QCOMPARE(p.Metin().Text(), u"Arı bal yapar."_s);
        p.Metin().Text(u"değişti"_s);
        p.Bas(u"KaydetDüğmesi"_s);
    });
    QCOMPARE(stored()[1].Metin, u"değişti"_s);
    QCOMPARE(stored()[3].Metin, u"ikinci"_s);
    KutuYanıtlayıcı yes(Yanıt::Evet);
    deleting([&](Pencere p) {
        p.Bas(u"SilButonu"_s);
        QCOMPARE(p.Liste().ListCount(), 3);
        QVERIFY(p.Liste().ÖnekleBul(u"ARI") >= 0);
    });
    QCOMPARE(stored()[2].Metin, u"ikinci"_s);
}

void TestEntryWindows::deleteUntilOneIsLeft()
{
    t->Makaleler().Text(u"ARI"_s);
    deleting([&](Pencere p) {
        QCOMPARE(p.Kutu.windowTitle(), u"Listeden Makale Sil..."_s);
        QCOMPARE(p.Etiket(u"ToplamMakaleSayısı"_s), u"Toplam: 3"_s);
        QCOMPARE(p.Liste().Text(), u"ARI"_s);
        QCOMPARE(p.Kutusu(u"YazarAdıKutusu"_s).Text(), u"ALİ KAYA"_s);
        QCOMPARE(p.Yer().Text() + p.Tarih().Text(), u"İzmir"_s);
        {
            KutuYanıtlayıcı enter(Yanıt::Kapat, [](QMessageBox& box) {
                QCOMPARE(box.text(), u"Silme işlemi geri alınamaz! Seçtiğiniz makaleyi silmek istediğinizden "
                                     u"emin misiniz?"_s);
                QVERIFY(box.defaultButton() == box.button(QMessageBox::No));
            });
            p.Bas(u"SilButonu"_s);
            QCOMPARE(stored(), Örnek);
        }
        {
            KutuYanıtlayıcı yes(Yanıt::Evet);
            QTest::keyClick(&p.Liste(), Qt::Key_Delete);
            QCOMPARE(p.Liste().ListIndex(), -1);
            QCOMPARE(p.Etiket(u"ToplamMakaleSayısı"_s), u"Toplam: 2"_s);
            QCOMPARE(p.Kutusu(u"YazarAdıKutusu"_s).Text() + p.Metin().Text(), QString());
            QCOMPARE(t->Makaleler().ListCount(), 0);
            QCOMPARE(t->Metin().Text(), QString());
            QCOMPARE(t->Yazarlar().ListCount(), 2);
            p.Liste().Text(u"ZEYTİN"_s);
            p.Bas(u"SilButonu"_s);
            QCOMPARE(yes.Sayı, 2);
            QCOMPARE(t->Yazarlar().ListCount(), 1);
        }
        KutuYanıtlayıcı last(Yanıt::Tamam);
        p.Bas(u"SilButonu"_s);
        QCOMPARE(last.Metin, u"Lütfen, silmek istediğiniz makaleyi listeden seçiniz!"_s);
        p.Liste().ListIndex(0);
        p.Bas(u"SilButonu"_s);
        QCOMPARE(last.Metin, u"Listede en az (1) makale kalması gerekiyor!"_s);
        QCOMPARE(p.Liste().ListIndex(), 0);
    });
    QCOMPARE(stored(), QList({Örnek[2]}));
}

void TestEntryWindows::deleteFinds()
{
    deleting([&](Pencere p) {
        auto& find = p.Kutusu(u"MakaleBulKutusu"_s);
        Yaz(find, u"ış"_s);
        QCOMPARE(find.Text(), u"IŞ"_s);
        QCOMPARE(p.Liste().Text(), u"IŞIK"_s);
        QCOMPARE(p.Metin().Text(), u"Işık hızlıdır."_s);
        Yaz(find, u"'"_s);
        QCOMPARE(find.Text(), u"IŞ'"_s);
        QCOMPARE(p.Liste().ListIndex(), -1);
        QCOMPARE(p.Metin().Text() + p.Yer().Text(), QString());
        find.Text({});
        QCOMPARE(p.Liste().ListIndex(), -1);
    });
}

QTEST_MAIN(TestEntryWindows)
#include "test_forms_giris.moc"

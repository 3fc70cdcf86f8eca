// The windows that add, change and delete articles.
#include "program_fixture.h"

#include "app/Dil.h"
#include "controls/AçılırListe.h"
#include "store/Bağlantı.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using Yanıt = KutuYanıtlayıcı::Yanıt;

namespace {

const QString TarihSorusu =
    u"Lütfen, tarihi doğru biçimde giriniz. Örneğin, \"Şubat 2003\" veya \"01 Şubat 2003\" gibi… \n"
    u"Eğer girdiğiniz biçimi korumak istiyorsanız lütfen, \"Evet\"i tıklayınız!"_s;
const QString SilmeSorusu =
    u"Silme işlemi geri alınamaz! Seçtiğiniz makaleyi silmek istediğinizden emin misiniz?"_s;
const QString YazarAlanı = u"YazarAdıListesi"_s, BaşlıkAlanı = u"MakaleBaşlığıKutusu"_s,
              YerAlanı = u"YayımYeriKutusu"_s, TarihAlanı = u"YayımTarihiKutusu"_s,
              MetinAlanı = u"MakaleMetniKutusu"_s, BulAlanı = u"MakaleBulKutusu"_s;
const QString EkleDüğmesi = u"EkleKaydetButonu"_s, KapatDüğmesi = u"İptalKapatButonu"_s,
              KaydetDüğmesi = u"KaydetDüğmesi"_s;

const QList<Makale> Örnek = {
    {u"ALİ KAYA"_s, u"ZEYTİN"_s, u"Deniz kıyısında"_s, u"Ankara"_s, u"Şubat 2003"_s},
    {u"ALİ KAYA"_s, u"ARI"_s, u"Arı bal yapar."_s, u"İzmir"_s, u""_s},
    {u"ZEKİ SU"_s, u"IŞIK"_s, u"Işık hızlıdır."_s, u"Van"_s},
};

bool mavi(const QWidget& pencere, int etiket)
{
    return pencere.findChild<QLabel*>(u"Etiket%1"_s.arg(etiket))->palette().color(QPalette::WindowText) ==
           QColor(Qt::blue);
}

/// A modal window while it stands.
struct Pencere
{
    QDialog& Kutu;

    template<class T = QWidget> T& Bul(const QString& ad)
    {
        return *static_cast<T*>(Kutu.findChild<QWidget*>(ad));
    }
    AçılırListe& Yazar() { return Bul<AçılırListe>(YazarAlanı); }
    QLineEdit& Kutusu(const QString& ad)
    {
        return ad == YazarAlanı ? *Yazar().lineEdit() : Bul<MetinKutusu>(ad);
    }
    QLineEdit& Tarih() { return Kutusu(TarihAlanı); }
    ZenginMetinKutusu& Metin() { return Bul<ZenginMetinKutusu>(MetinAlanı); }
    ListeKutusu& Liste() { return Bul<ListeKutusu>(u"MakaleListesi"_s); }
    QPushButton& Düğmesi(const QString& ad) { return Bul<QPushButton>(ad); }
    QString Odak() const { return Kutu.focusWidget()->objectName(); }
    /// Presses as the mouse does, through the window.
    void Bas(QWidget& kontrol)
    {
        QTest::mouseClick(Kutu.windowHandle(), Qt::LeftButton, {},
                          kontrol.mapTo(&Kutu, kontrol.rect().center()));
    }
    void Bas(const QString& düğme) { Bas(Düğmesi(düğme)); }
    /// What a window manager does when a box above the window has gone. (Qt's own waiting is content with its
    /// owner.)
    void Etkinleş()
    {
        Kutu.activateWindow();
        QTRY_VERIFY_WITH_TIMEOUT(Kutu.isActiveWindow(), BeklemeSınırı);
    }
    void Doldur(const Makale& makale)
    {
        Yazar().Text(makale.Yazar);
        Kutusu(BaşlıkAlanı).setText(makale.Başlık);
        Kutusu(YerAlanı).setText(makale.Yer);
        Tarih().setText(makale.Tarih);
        Metin().Text(makale.Metin);
    }
};

/// Chooses a file in the next open dialog; keeps what it showed.
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
                kutu->selectNameFilter(kutu->nameFilters()[yol.endsWith(u".rtf"_s)]);
            }
            const auto* görünen = kutu->findChild<QIdentityProxyModel*>();
            const auto* dosyalar = kutu->findChild<QFileSystemModel*>();
            Görülen = kutu->nameFilters().join(u'|');
            for (const QModelIndex& yer : {dosyalar->index(yol, 1), dosyalar->index(u"/"_s, 2)})
                Görülen += u'|' + görünen->mapFromSource(yer).data().toString();
            // Until the folder has been read the button is disabled: the next tick tries again.
            auto* ad = kutu->findChild<QLineEdit*>(u"fileNameEdit"_s);
            ad->clear();
            ad->setText(yol);
            kutu->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
        });
        Saat.start(20);
    }
    QTimer Saat;
    QString Klasör, Görülen;
};

QObjectList odakHaberleri; // the controls of which screen readers are told that they have the focus

} // namespace

// Stand in for a desktop with a screen reader, which the offscreen platform has none of.
bool QAccessible::isActive()
{
    return true;
}
void QAccessible::updateAccessibility(QAccessibleEvent* olay)
{
    if (olay->type() == Focus)
        odakHaberleri.append(olay->object());
}

class TestEntryWindows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { DiliKur(); }
    void init()
    {
        t = std::make_unique<AnaFormDenemesi>(Örnek);
        t->Göster();
    }
    void cleanup() { t.reset(); }
    void add();
    void keysAndLimits();
    void missingFields();
    void waysOutOfTheDate_data();
    void waysOutOfTheDate();
    void pasteAndFiles();
    void authorsListOpensAtWhatIsTyped();
    void change();
    void sameTitlesAndLongValues();
    void deleteUntilOneIsLeft();
    void screenReadersFollowTheFocus();

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
            p.Bas(EkleDüğmesi);
            user(p);
        });
    }
    void changing(const std::function<void(Pencere)>& user) { inWindow(u"MakeleDeğiştirMenüsü"_s, user); }
    void deleting(const std::function<void(Pencere)>& user) { inWindow(u"MakaleSilMenüsü"_s, user); }
    static QList<Makale> stored() { return Makaleler(*Veritabanı); }
    std::unique_ptr<AnaFormDenemesi> t;
};

void TestEntryWindows::add()
{
    const auto state = [&](Pencere p, bool entry) {
        for (const QString& field : {YazarAlanı, BaşlıkAlanı, YerAlanı, TarihAlanı, MetinAlanı}) {
            QVERIFY(p.Bul(field).isEnabled() == entry);
            QCOMPARE(p.Bul(field).palette().color(QPalette::Base),
                     p.Kutu.palette().color(entry ? QPalette::Base : QPalette::Window));
        }
        QCOMPARE(p.Metin().Text() + p.Kutusu(BaşlıkAlanı).text() + p.Yazar().Text(), QString());
        QCOMPARE(p.Düğmesi(EkleDüğmesi).text() + p.Düğmesi(KapatDüğmesi).text(),
                 entry ? u"Kayd&etİptal"_s : u"Makale &EkleKapat"_s);
        for (const QString& button : {u"DosyaYükleButonu"_s, u"YapıştırButonu"_s})
            QCOMPARE(p.Düğmesi(button).isEnabled(), entry);
    };
    const Makale first = {u"YENİ YAZAR"_s, u"İLK"_s, u"bir\niki\u00a0üç\n\tson"_s, u"Bursa"_s, u""_s};
    const Makale second = {u"ALİ KAYA"_s, u"İLK"_s, u"x"_s, u"Van"_s, u"2003 Bahar"_s};
    QApplication::clipboard()->setText(u"pano"_s);
    inWindow(u"MakaleEkleMenüsü"_s, [&](Pencere p) {
        QCOMPARE(p.Kutu.windowTitle(), u"Listeye Makale Ekle..."_s);
        state(p, false);
        QVERIFY(p.Yazar().ListCount() == 2 && p.Yazar().Text().isEmpty());
        p.Bas(EkleDüğmesi);
        state(p, true);
        QVERIFY(p.Odak() == YazarAlanı && p.Metin().FontSize() == 8);
        p.Doldur(Örnek[0]);
        p.Kutu.close();
        QTest::keyClick(&p.Metin(), Qt::Key_Escape);
        for (const KapanışNedeni reason : {KapanışNedeni::OturumSonu, KapanışNedeni::GörevYöneticisi})
            QVERIFY(!t->Form->Kapat(reason));
        QVERIFY(p.Kutu.isVisible() && Veritabanı && p.Metin().Text() == Örnek[0].Metin);
        p.Bas(KapatDüğmesi);
        state(p, false);
        QApplication::clipboard()->clear();
        p.Bas(EkleDüğmesi);
        QVERIFY(!p.Düğmesi(u"YapıştırButonu"_s).isEnabled());
        p.Doldur(first);
        p.Bas(EkleDüğmesi);
        state(p, false);
        QCOMPARE(t->Yazarlar().Item(1) + t->Etiket(u"ToplamYazarSayısıEtiketi"_s), u"YENİ YAZARToplam: 3"_s);
        QCOMPARE(p.Yazar().ListCount(), 2); // as it was when the window opened
        p.Bas(EkleDüğmesi);
        p.Doldur(second);
        p.Bas(EkleDüğmesi);
        p.Bas(KapatDüğmesi);
        QVERIFY(!p.Kutu.isVisible());
    });
    QCOMPARE(stored(), Örnek + QList({first, second}));
}

// What " ıi'ş " becomes, and once it is left; what has the focus after Enter; how many letters there may be.
void TestEntryWindows::keysAndLimits()
{
    const auto row = [](Pencere p, int label, const QString& field, const QString& typed, const QString& left,
                        const QString& next, int limit) {
        p.Bul(field).setFocus();
        p.Kutusu(field).setText(QString(1100, u'a'));
        QCOMPARE(p.Kutusu(field).text().size(), limit);
        p.Kutusu(field).clear();
        Yaz(p.Bul(field), u" ıi'ş "_s);
        QCOMPARE(p.Kutusu(field).text(), typed);
        KutuYanıtlayıcı evenSo(Yanıt::Evet);
        Yaz(p.Bul(field), u"\r"_s);
        p.Etkinleş();
        QCOMPARE(p.Kutusu(field).text(), left);
        QCOMPARE(p.Odak(), next);
        QVERIFY(mavi(p.Kutu, label) == (next == field));
    };
    adding([&](Pencere p) {
        row(p, 0, YazarAlanı, u" Iİ´Ş "_s, u"Iİ´Ş"_s, BaşlıkAlanı, 1000);
        row(p, 1, BaşlıkAlanı, u" Iİ´Ş "_s, u"Iİ´Ş"_s, YerAlanı, 255);
        row(p, 2, YerAlanı, u" ıi´ş "_s, u"Ii´ş"_s, TarihAlanı, 50);
        row(p, 3, TarihAlanı, u" ıi´ş "_s, u"Ii´ş"_s, MetinAlanı, 20);
        QVERIFY(mavi(p.Kutu, 4));
        Yaz(p.Metin(), u"  o'"_s);
        QTest::keyClick(&p.Metin(), Qt::Key_Return);
        Yaz(p.Metin(), u" e "_s);
        QTest::keyClick(&p.Metin(), Qt::Key_Backtab);
        QCOMPARE(p.Metin().Text(), u"o'\n e"_s);
        QTRY_COMPARE_WITH_TIMEOUT(p.Tarih().selectedText(), u"Ii´ş"_s, BeklemeSınırı);
        for (const QString& date : {u""_s, u" 01 şubat 2003 "_s}) { // no question
            p.Tarih().setFocus();
            p.Tarih().setText(date);
            Yaz(p.Tarih(), u"\r"_s);
            QCOMPARE(p.Tarih().text(), date.isEmpty() ? date : u"01 Şubat 2003"_s);
        }
        p.Yazar().setFocus();
        p.Kutusu(YazarAlanı).setText(u"o'neil\tx\u2029\u00ad😀"_s + QChar(0xd83d)); // as pasted
        QTest::keyClick(&p.Yazar(), Qt::Key_Tab);
        QCOMPARE(p.Yazar().Text(), u"o'neil x \u00ad😀"_s);
    });
    deleting([&](Pencere p) { row(p, 1, BulAlanı, u" Iİ'Ş "_s, u" Iİ'Ş "_s, BulAlanı, 25); });
}

void TestEntryWindows::missingFields()
{
    const auto [author, title, text, place, date] = Örnek[0];
    const std::tuple<Makale, QString, QString> rows[] = {
        {{}, u"Yazar adı, boş bırakılamaz."_s, YazarAlanı},
        {{u"ALİ"_s, title, text}, u"Yazar adı, tek sözcük olamaz!"_s, YazarAlanı},
        {{u"ALİ\u00a0SU"_s, title, text}, u"Yazar adı, tek sözcük olamaz!"_s, YazarAlanı},
        {{author, {}, text}, u"Makale başlığı, boş bırakılamaz."_s, BaşlıkAlanı},
        {{author, title, text, {}}, u"Yayım yeri, boş bırakılamaz."_s, YerAlanı},
        {{author, title, {}, place}, u"Makale metni, boş bırakılamaz."_s, MetinAlanı}};
    const auto refused = [&](Pencere p, const QString& save) {
        for (const auto& [article, message, field] : rows) {
            p.Doldur(article);
            KutuYanıtlayıcı box(Yanıt::Tamam);
            p.Bas(save);
            QCOMPARE(box.Metin, message);
            QCOMPARE(p.Odak(), field);
            p.Etkinleş();
        }
        QVERIFY(p.Kutu.isVisible() && p.Yazar().isEnabled());
    };
    adding([&](Pencere p) { refused(p, EkleDüğmesi); });
    changing([&](Pencere p) { refused(p, KaydetDüğmesi); });
    QCOMPARE(stored(), Örnek);
}

// Whatever takes the focus away asks first, once; what was wanted then happens or doesn't.
void TestEntryWindows::waysOutOfTheDate_data()
{
    using Way = std::function<void(Pencere)>;
    QTest::addColumn<Way>("go");
    QTest::addColumn<QString>("focus"); // after a Yes
    const auto row = [](const char* name, const QString& focus, const Way& go) {
        QTest::newRow(name) << go << focus;
    };
    const auto key = [](Qt::Key pressed, Qt::KeyboardModifiers with = {}) -> Way {
        return [=](Pencere p) { QTest::keyClick(&p.Tarih(), pressed, with); };
    };
    row("Tab", MetinAlanı, key(Qt::Key_Tab));
    row("back", YerAlanı, key(Qt::Key_Backtab));
    row("mouse", KaydetDüğmesi, [](Pencere p) { p.Bas(KaydetDüğmesi); });
    row("mouse on the text", MetinAlanı, [](Pencere p) { p.Bas(*p.Metin().viewport()); });
    row("mnemonic", KaydetDüğmesi, key(Qt::Key_E, Qt::AltModifier));
    row("label's mnemonic", BaşlıkAlanı, key(Qt::Key_B, Qt::AltModifier));
    row("Esc", u"VazgeçDüğmesi"_s, key(Qt::Key_Escape));
    row("screen reader presses", KaydetDüğmesi, [](Pencere p) {
        auto* button = QAccessible::queryAccessibleInterface(&p.Düğmesi(KaydetDüğmesi));
        auto* actions = button ? button->actionInterface() : nullptr;
        QVERIFY(actions);
        actions->doAction(QAccessibleActionInterface::pressAction());
    });
    row("screen reader goes", BaşlıkAlanı, [](Pencere p) { p.Kutusu(BaşlıkAlanı).setFocus(); });
    row("goes from behind", BaşlıkAlanı, [](Pencere p) {
        auto front = std::make_unique<QWidget>();
        front->show();
        front->activateWindow();
        QTRY_VERIFY_WITH_TIMEOUT(front->isActiveWindow(), BeklemeSınırı);
        p.Kutusu(BaşlıkAlanı).setFocus();
        front.reset();
        p.Kutu.activateWindow();
    });
}

void TestEntryWindows::waysOutOfTheDate()
{
    QFETCH(std::function<void(Pencere)>, go);
    QFETCH(QString, focus);
    changing([&](Pencere p) {
        p.Tarih().setFocus();
        p.Tarih().setText(u" 2003 bahar "_s);
        for (const bool stays : {true, false}) {
            KutuYanıtlayıcı box(stays ? Yanıt::Hayır : Yanıt::Evet);
            go(p);
            QTRY_COMPARE_WITH_TIMEOUT(box.Metin, TarihSorusu, BeklemeSınırı);
            QTRY_COMPARE_WITH_TIMEOUT(p.Odak(), stays ? TarihAlanı : focus, BeklemeSınırı);
            QTRY_COMPARE_WITH_TIMEOUT(p.Kutu.isVisible(), stays || focus != KaydetDüğmesi, BeklemeSınırı);
            if (p.Kutu.isVisible())
                p.Etkinleş();
            QTRY_COMPARE_WITH_TIMEOUT(mavi(p.Kutu, 3), stays, BeklemeSınırı);
            QCOMPARE(p.Tarih().text(), stays ? u"2003 bahar"_s : u"2003 Bahar"_s);
            QCOMPARE(box.Sayı, 1);
        }
    });
    QCOMPARE(stored()[1].Tarih, focus == KaydetDüğmesi ? u"2003 Bahar"_s : QString());
}

void TestEntryWindows::pasteAndFiles()
{
    QTemporaryDir folder;
    const QString plain = folder.filePath(u"düz.txt"_s), rich = folder.filePath(u"zengin.rtf"_s),
                  binary = folder.filePath(u"resim.txt"_s), load = u"DosyaYükleButonu"_s;
    DosyaYaz(plain, u"birinci\r\nikinci ışık"_s.toUtf8());
    DosyaYaz(rich, R"({\rtf1\ansi\ansicpg1254  {\b kal\'fdn} {\i e\u287?ik}\par son })");
    DosyaYaz(binary, QByteArray("\x89PNG\0\0\0\r", 8).repeated(20));
    QApplication::clipboard()->setText(u"yeni\r\nmetin"_s + QChar(0) + u"\u00a0!"_s);
    adding([&](Pencere p) {
        p.Metin().Text(u"önceki"_s);
        p.Bas(u"YapıştırButonu"_s);
        QCOMPARE(p.Metin().Text(), u"yeni\nmetin\u00a0!"_s);
        p.Metin().undo();
        QApplication::clipboard()->setImage(QImage(8, 8, QImage::Format_RGB32));
        p.Bas(u"YapıştırButonu"_s);
        {
            DosyaSeçici chosen(binary);
            KutuYanıtlayıcı box(Yanıt::Tamam);
            p.Bas(load);
            QVERIFY2(box.Metin.contains(u"resim.txt"_s), qPrintable(box.Metin));
        }
        QCOMPARE(p.Metin().Text(), u"önceki"_s);
        QCOMPARE(AyarOku(Ayarlar::SonAçılan, u"yok"_s), u"yok"_s);
        // Its list of completions would keep the keyboard from the window that comes back.
        qsizetype dialogs = -1;
        QObject::connect(&p.Metin(), &QPlainTextEdit::textChanged, &p.Kutu, [&] {
            QTimer::singleShot(0, &p.Kutu, [&] { dialogs = p.Kutu.findChildren<QFileDialog*>().size(); });
        });
        DosyaSeçici first(plain);
        p.Bas(load);
        QCOMPARE(dialogs, 0);
        QCOMPARE(p.Metin().Text(), u"birinci\nikinci ışık"_s);
        QCOMPARE(AyarOku(Ayarlar::SonAçılan), plain);
        QCOMPARE(first.Görülen, u"Metin Dosyaları (*.txt)|Zengin Metin Biçimi (*.rtf)|23 bayt|Sürücü"_s);
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

void TestEntryWindows::authorsListOpensAtWhatIsTyped()
{
    Ekle(*Veritabanı, {{u"ZEKİ İRİ"_s, u"B1"_s, u"x"_s}, {u"ZEKİ IRMAK"_s, u"B2"_s, u"x"_s}});
    changing([&](Pencere p) {
        for (const auto& [typed, opened] :
             {std::pair(u"zeki i"_s, u"ZEKİ İRİ"_s), std::pair(u"ZEKİ"_s, u"ZEKİ IRMAK"_s),
              std::pair(u"ZEKİ I"_s, u"ZEKİ IRMAK"_s), std::pair(u"yok"_s, QString()),
              std::pair(QString(), QString())}) {
            p.Yazar().Text(typed);
            p.Yazar().setFocus();
            QTest::keyClick(&p.Yazar(), Qt::Key_Down, Qt::AltModifier);
            QVERIFY(p.Yazar().view()->isVisible());
            QCOMPARE(p.Yazar().view()->currentIndex().data().toString(), opened);
            QCOMPARE(p.Yazar().Text(), typed);
            QTest::keyClick(p.Yazar().view(), Qt::Key_Escape);
            QCOMPARE(p.Yazar().Text(), typed);
        }
        p.Yazar().Text(u"ZEKİ"_s);
        p.Yazar().showPopup();
        QTest::keyClick(p.Yazar().view(), Qt::Key_Return);
        QCOMPARE(p.Yazar().Text(), u"ZEKİ IRMAK"_s);
    });
}

void TestEntryWindows::change()
{
    t->Yazarlar().ListIndex(0);
    t->Makaleler().Text(u"arı"_s);
    changing([&](Pencere p) { // cancelled
        p.Kutusu(BaşlıkAlanı).setText(u"BAŞKA"_s);
        QTest::keyClick(&p.Kutusu(BaşlıkAlanı), Qt::Key_Escape);
        QVERIFY(p.Kutu.isVisible());
        p.Bas(u"VazgeçDüğmesi"_s);
    });
    QCOMPARE(t->Makaleler().Text(), u"ARI"_s);
    QVERIFY(mavi(*t->Form, 0) && stored() == Örnek);
    changing([&](Pencere p) {
        QVERIFY(!mavi(*t->Form, 0)); // while another window stands before it
        QCOMPARE(p.Kutu.windowTitle() + p.Düğmesi(u"VazgeçDüğmesi"_s).text(),
                 u"Makaleyi Değiştir...Vazgeç"_s);
        QCOMPARE(p.Yazar().Text() + p.Kutusu(YerAlanı).text() + p.Tarih().text(), u"ALİ KAYAİzmir"_s);
        p.Kutusu(BaşlıkAlanı).setText(u"BAL"_s);
        p.Yazar().Text(u"ZEKİ SU"_s);
        {
            const auto other = DosyaBağlantısı(t->Program.Klasör());
            İşlem lock(*other);
            p.Bas(KaydetDüğmesi);
        }
        QVERIFY(p.Kutu.isVisible() && stored() == Örnek); // it could not be saved
        p.Bas(KaydetDüğmesi);
        QVERIFY(!p.Kutu.isVisible());
    });
    QVERIFY(mavi(*t->Form, 0));
    QCOMPARE(stored()[1], (Makale{u"ZEKİ SU"_s, u"BAL"_s, u"Arı bal yapar."_s, u"İzmir"_s, u""_s}));
    QCOMPARE(t->Yazarlar().Text() + t->Makaleler().Text() + t->Metin().Text(), u"ZEKİ SUBALArı bal yapar."_s);
    t->Bul<MetinKutusu>(u"BulKutusu"_s).Text(u"ışık"_s); // among the results of a search
    t->Bul<QPushButton>(u"TümündeBulButonu"_s).click();
    changing([&](Pencere p) {
        p.Kutusu(BaşlıkAlanı).setText(u"IŞIN"_s);
        p.Bas(KaydetDüğmesi);
    });
    QVERIFY(t->Makaleler().ListCount() == 1 && t->Makaleler().Text() == u"IŞIN"_s);
    QCOMPARE(t->Yazarlar().Text(), u"ZEKİ SU"_s);
    t->Makaleler().ListIndex(-1);
    KutuYanıtlayıcı box(Yanıt::Tamam);
    t->Form->findChild<QAction*>(u"MakeleDeğiştirMenüsü"_s)->trigger();
    QCOMPARE(box.Metin, u"Lütfen, değişikilik yapmak istediğiniz makaleyi listeden seçeniz!"_s);
    QCOMPARE(t->Form->focusWidget()->objectName(), u"MakaleListesi"_s);
}

void TestEntryWindows::sameTitlesAndLongValues()
{
    const QString title = QString(400, u'Ğ'), place = QString(90, u'y'), date = QString(60, u't');
    const Makale second = {u"ALİ KAYA"_s, title, u"ikinci"_s};
    Ekle(*Veritabanı, {{u"ALİ KAYA"_s, title, u"birinci"_s, place, date}, second});
    t->Yazarlar().ListIndex(1);
    t->Yazarlar().ListIndex(0);
    t->Makaleler().ListIndex(2); // the second one of that title
    changing([&](Pencere p) {
        QCOMPARE(p.Metin().Text(), u"birinci"_s);
        p.Metin().Text(u"değişti"_s);
        p.Bas(KaydetDüğmesi);
    });
    QCOMPARE(stored().mid(3), QList<Makale>({{u"ALİ KAYA"_s, title, u"değişti"_s, place, date}, second}));
    KutuYanıtlayıcı yes(Yanıt::Evet);
    deleting([&](Pencere p) {
        p.Liste().Text(title);
        p.Bas(u"SilButonu"_s);
        QVERIFY(p.Liste().ListCount() == 4 && p.Liste().ÖnekleBul(title) >= 0);
    });
    QCOMPARE(stored()[3].Metin, u"ikinci"_s);
}

void TestEntryWindows::deleteUntilOneIsLeft()
{
    t->Makaleler().Text(u"ARI"_s);
    deleting([&](Pencere p) {
        const auto shown = [&] {
            return QStringList({p.Bul<QLabel>(u"ToplamMakaleSayısı"_s).text(), p.Liste().Text(),
                                p.Kutusu(u"YazarAdıKutusu"_s).text(), p.Kutusu(YerAlanı).text(),
                                p.Tarih().text(), p.Metin().Text()})
                .join(u'|');
        };
        QCOMPARE(p.Kutu.windowTitle(), u"Listeden Makale Sil..."_s);
        QCOMPARE(shown(), u"Toplam: 3|ARI|ALİ KAYA|İzmir||Arı bal yapar."_s);
        {
            KutuYanıtlayıcı enter(Yanıt::Kapat, [](QMessageBox& box) {
                QVERIFY(box.defaultButton() == box.button(QMessageBox::No));
            });
            p.Bas(u"SilButonu"_s);
            QCOMPARE(enter.Metin, SilmeSorusu);
            QCOMPARE(stored(), Örnek);
        }
        {
            KutuYanıtlayıcı yes(Yanıt::Evet);
            QTest::keyClick(&p.Liste(), Qt::Key_Delete);
            QCOMPARE(shown(), u"Toplam: 2|||||"_s);
            QCOMPARE(t->Yazarlar().ListCount(), 2);
            QVERIFY(t->Makaleler().ListCount() == 0 && t->Metin().Text().isEmpty());
            p.Liste().Text(u"ZEYTİN"_s);
            p.Bas(u"SilButonu"_s);
            QVERIFY(yes.Sayı == 2 && t->Yazarlar().ListCount() == 1);
        }
        Yaz(p.Bul(BulAlanı), u"ış"_s);
        QVERIFY(shown().contains(u"|IŞIK|ZEKİ SU|"_s));
        Yaz(p.Bul(BulAlanı), u"'"_s);
        QCOMPARE(shown(), u"Toplam: 1|||||"_s);
        p.Kutusu(BulAlanı).clear();
        QCOMPARE(p.Liste().ListIndex(), -1);
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

// What a list selects because of another one is no news of the focus.
void TestEntryWindows::screenReadersFollowTheFocus()
{
    t->Form->activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(t->Form->isActiveWindow(), BeklemeSınırı);
    t->Yazarlar().setFocus();
    odakHaberleri.clear();
    QTest::keyClick(&t->Yazarlar(), Qt::Key_Down);
    QCOMPARE(odakHaberleri, QObjectList({&t->Yazarlar()}));
}

QTEST_MAIN(TestEntryWindows)
#include "test_forms_entry.moc"

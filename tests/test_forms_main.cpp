// The main window: loading, browsing, layout, exit.
#include "program_fixture.h"

#include "app/Ayarlar.h"
#include "app/Görünüm.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/PencereYeri.h"
#include "app/İletiKutusu.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

const QList<Makale> Örnek = {
    {u"ALİ KAYA"_s, u"ZEYTİN"_s, u"Zeytin ağacı uzun yaşar."_s},
    {u"ALİ KAYA"_s, u"ARI"_s, u"Arı bal yapar."_s},
    {u"ALİ KAYAALP"_s, u"DENİZ"_s, u"Bir deniz gördüm."_s},
    {u"IŞIL SU"_s, u"IŞIK"_s, u"Işık ve deniz."_s},
    {u"O'NEİL KESME"_s, u"KESME"_s, u"Kesmeli."_s},
};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { placer = std::make_unique<PencereYerleştirici>(*qApp); }
    void init() { t = std::make_unique<AnaFormDenemesi>(Örnek); }
    void cleanup()
    {
        t.reset();
        letters(OlağanYazıBoyutu);
    }
    void cleanupTestCase() { placer.reset(); }
    void controlsAndMenus();
    void emptyLibrary();
    void browsing();
    void changedAuthors();
    void lastAuthor_data();
    void lastAuthor();
    void layout_data();
    void layout();
    void sizeGuard_data();
    void sizeGuard();
    void windows_data();
    void windows();
    void sharedLetter();
    void keys_data();
    void keys();
    void exitQuestion();
    void exitSaves_data();
    void exitSaves();
    void closedWhileFilling();

private:
    QRect place(const QString& name)
    {
        const auto& w = t->Bul<QWidget>(name);
        return {w.mapTo(t->Form->centralWidget(), QPoint(0, 0)), w.size()};
    }
    static void letters(double points)
    {
        QFont desktop;
        desktop.setPointSizeF(points);
        FormÖlçüsünüKur(desktop, {AnaForm::EnAzGenişlik, AnaForm::EnAzYükseklik});
    }
    std::unique_ptr<PencereYerleştirici> placer;
    std::unique_ptr<AnaFormDenemesi> t;
};

void TestMainWindow::controlsAndMenus()
{
    t->Göster();
    QCOMPARE(t->Form->windowTitle(), AnaPencereBaşlığı);
    const QStringList sıra = {u"YazarListesi"_s,    u"YazarBulKutusu"_s,    u"MakaleListesi"_s,
                              u"MakaleBulKutusu"_s, u"MakaleMetniKutusu"_s, u"BulKutusu"_s};
    QWidget* kontrol = &t->Yazarlar();
    for (int i = 0; i < sıra.size(); ++i) {
        const QWidget* bağlı = t->Bul<QLabel>(u"Etiket%1"_s.arg(i)).buddy();
        QCOMPARE(bağlı, kontrol);
        QCOMPARE(bağlı->objectName(), sıra[i]);
        QVERIFY(!bağlı->accessibleName().isEmpty() && !bağlı->accessibleName().contains(u'&'));
        do // the find buttons are disabled and so passed over
            kontrol = kontrol->nextInFocusChain();
        while (!(kontrol->focusPolicy() & Qt::TabFocus) || !kontrol->isEnabled() || !kontrol->isVisible());
    }
    QCOMPARE(kontrol->objectName(), u"ÇıkışButonu"_s);
    QCOMPARE(t->Form->findChild<QAction*>(u"MakeleDeğiştirMenüsü"_s)->text(), u"Seçili Makaleyi &Değiştir"_s);
    QCOMPARE(t->Form->findChild<QMenu*>(u"YardımMenüsü"_s)->actions().size(), 5);
}

void TestMainWindow::emptyLibrary()
{
    t.reset();
    t = std::make_unique<AnaFormDenemesi>(QList<Makale>());
    t->Göster();
    QCOMPARE(t->Etiket(u"ToplamYazarSayısıEtiketi"_s), u"Toplam: 0"_s);
    QCOMPARE(t->Etiket(u"ToplamMakaleSayısıEtiketi"_s), u"Toplam: 0"_s);
    QTest::keyClick(&t->Yazarlar(), Qt::Key_Down);
    QVERIFY(t->Metin().Text().isEmpty());
    QVERIFY(t->Metin().placeholderText().contains(u"Listeye Makale Ekle"));
    // The first article comes in by its window, which has the list filled again.
    Ekle(*Veritabanı, {{u"ALİ KAYA"_s, u"ARI"_s, u"Bal."_s}});
    t->Form->YazarListesiYükle();
    QCOMPARE(t->Metin().placeholderText(), QString());
}

void TestMainWindow::browsing()
{
    t->Göster();
    QCOMPARE(t->Metin().placeholderText(), QString());
    ListeKutusu& yazarlar = t->Yazarlar();
    ListeKutusu& makaleler = t->Makaleler();
    QCOMPARE(yazarlar.ListCount(), 4);
    QCOMPARE(yazarlar.Text(), u"ALİ KAYA"_s);
    QCOMPARE(makaleler.ListCount(), 2);
    QCOMPARE(makaleler.Text(), u"ARI"_s);
    QTest::keyClick(&makaleler, Qt::Key_Down);
    QVERIFY(t->Metin().Text().startsWith(u"Zeytin"_s));
    yazarlar.ListIndex(2);
    QCOMPARE(t->Metin().Text(), u"Işık ve deniz."_s);
    QCOMPARE(t->Etiket(u"ToplamMakaleSayısıEtiketi"_s), u"Toplam: 1"_s);

    // A press on the selected author brings its articles back after the list was emptied.
    makaleler.Clear();
    QTest::mouseClick(yazarlar.viewport(), Qt::LeftButton, {},
                      yazarlar.visualRect(yazarlar.currentIndex()).center());
    QCOMPARE(makaleler.ListCount(), 1);

    // A name that breaks its query shows nothing, rather than another author's articles.
    yazarlar.ListIndex(3);
    QCOMPARE(makaleler.ListCount(), 0);
    QVERIFY(t->Metin().Text().isEmpty());
    yazarlar.ListIndex(0);
    QCOMPARE(makaleler.ListCount(), 2);

    // An empty table leaves the author list as it was.
    Recordset kayıtlar = Veritabanı->OpenRecordset(u"SELECT * FROM [Makaleler]"_s);
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext())
        kayıtlar.Delete();
    t->Form->YazarListesiYükle();
    QCOMPARE(yazarlar.ListCount(), 4);
}

/// Bringing up to date what changed comes to the same as reading all authors.
void TestMainWindow::changedAuthors()
{
    t->Göster();
    ListeKutusu& yazarlar = t->Yazarlar();
    const auto öğeler = [&] {
        QStringList hepsi;
        for (int i = 0; i < yazarlar.ListCount(); ++i)
            hepsi.append(yazarlar.Item(i));
        return hepsi;
    };
    const auto sil = [](const QString& yazar) {
        Recordset kayıtlar =
            Veritabanı->OpenRecordset(u"SELECT * FROM [Makaleler] WHERE [YazarAdi]='%1'"_s.arg(yazar));
        for (; !kayıtlar.Eof(); kayıtlar.MoveNext())
            kayıtlar.Delete();
    };
    const auto ekle = [](const QString& yazar) { Ekle(*Veritabanı, {{yazar, u"AA"_s, u"b"_s}}); };
    struct Adım
    {
        std::function<void()> Yap;
        QStringList Yazarlar;
    };
    const QList<Adım> adımlar = {
        {[&] { ekle(u"ÇAĞ EN"_s); }, {u"ÇAĞ EN"_s}}, // in the middle
        {[&] { ekle(u"AA BB"_s); }, {u"AA BB"_s}},   // at the beginning
        {[&] { ekle(u"ÜÜ ŞŞ"_s); },
         {u"U\u0308U\u0308 S\u0327S\u0327"_s}},    // at the end, as other systems type it
        {[&] { ekle(u"aa bb"_s); }, {u"aa bb"_s}}, // the same one
        {[&] { sil(u"AA BB"_s); }, {u"AA BB"_s}},
        {[&] { sil(u"ÇAĞ EN"_s), ekle(u"ZZ ZZ"_s); }, {u"ÇAĞ EN"_s, u"ZZ ZZ"_s}}, // another name
        {[] {}, {u"ALİ KAYA"_s}},
        {[&] { sil(u"ÜÜ ŞŞ"_s), sil(u"ZZ ZZ"_s); }, {QString()}}, // not known
        {[&] { ekle(u"O'NEIL X"_s); }, {u"O'NEIL X"_s}},          // breaks its query
    };
    for (const Adım& adım : adımlar) {
        yazarlar.ListIndex(1);
        adım.Yap();
        t->Form->YazarListesiYükle(adım.Yazarlar);
        const QStringList bulunan = öğeler();
        QCOMPARE(yazarlar.ListIndex(), -1);
        const QString toplam = t->Etiket(u"ToplamYazarSayısıEtiketi"_s);
        t->Form->YazarListesiYükle();
        QCOMPARE(bulunan, öğeler());
        QCOMPARE(toplam, t->Etiket(u"ToplamYazarSayısıEtiketi"_s));
    }
}

void TestMainWindow::lastAuthor_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("index");
    QTest::newRow("absent") << QString() << 0;
    QTest::newRow("second") << u"1"_s << 1;
    QTest::newRow("last") << u"3"_s << 3;
    QTest::newRow("beyond the last") << u"4"_s << -1;
    QTest::newRow("huge") << u"1e30"_s << -1;
    QTest::newRow("negative") << u"-1"_s << -1;
    QTest::newRow("nonsense") << u"son"_s << 0;
}

void TestMainWindow::lastAuthor()
{
    QFETCH(QString, stored);
    QFETCH(int, index);
    if (!stored.isNull())
        AyarMetni(Ayarlar::SonYazar, stored);
    t->Göster();
    QCOMPARE(t->Yazarlar().ListIndex(), index);
    QCOMPARE(t->Makaleler().ListCount() > 0, index >= 0 && index < 3); // the last one's name breaks its query
}

void TestMainWindow::layout_data()
{
    QTest::addColumn<double>("points"); // the desktop's letters
    QTest::addColumn<QSize>("asked");
    QTest::addColumn<QSize>("outer");
    QTest::newRow("below the minimum") << 9.0 << QSize(100, 100) << QSize(648, 480);
    QTest::newRow("usual") << 9.0 << QSize(1000, 700) << QSize(1000, 700);
    QTest::newRow("large") << 9.0 << QSize(3840, 2160) << QSize(3840, 2160);
    QTest::newRow("small letters") << 7.0 << QSize(100, 100) << QSize(648, 480);
    QTest::newRow("10 points") << 10.0 << QSize(100, 100) << QSize(720, 533);
    QTest::newRow("11 points") << 11.0 << QSize(900, 700) << QSize(900, 700);
    QTest::newRow("larger than fits the screen") << 30.0 << QSize(100, 100) << QSize(792, 587);
}

void TestMainWindow::layout()
{
    QFETCH(double, points);
    QFETCH(QSize, asked);
    QFETCH(QSize, outer);
    letters(points);
    AyarMetni(Ayarlar::TamEkran, u"1"_s); // anything but 2 is a normal window
    t->Göster();
    QVERIFY(!t->Form->isMaximized());
    const double size = t->Bul<QLabel>(u"Etiket0"_s).font().pointSizeF();
    QVERIFY(size == points || (size > OlağanYazıBoyutu && size < points)); // less where it would not fit
    t->Form->resize(asked - (ÇerçeveliYer(*t->Form).size() - t->Form->size()));
    QTRY_COMPARE_WITH_TIMEOUT(ÇerçeveliYer(*t->Form).size(), outer, BeklemeSınırı);
    const int w = FormTwipi(outer.width()), h = FormTwipi(outer.height()), list = w / 3;
    const QHash<QString, int> from = {{u"W"_s, w}, {u"H"_s, h}, {u"L"_s, list}};
    // Control, property (left, top, width, height), value
    const QString rows =
        u"YazarListesi w L 0;Altlık w L 0;YazarBulKutusu w L 0;Etiket3 t H -1790;MakaleBulKutusu t H -1490;"
        "MakaleBulKutusu w L 0;MakaleMetniKutusu w W -940;MakaleMetniKutusu l L 495;MakaleListesi w L 0;"
        "MakaleListesi h H -4605;MakaleMetniKutusu h H -2355;Etiket4 l L 495;Etiket5 l L 495;"
        "BulKutusu l L 495;Etiket5 t H -1790;BulKutusu t H -1490;BulButonu l L 2275;BulButonu t H -1750;"
        "TemizleButonu l L 2275;TemizleButonu t H -1350;TümündeBulButonu l L 3495;TümündeBulButonu t H -1750;"
        "ÇıkışButonu l W -1560;ÇıkışButonu t H -1750;ToplamYazarSayısıEtiketi l L -1155;"
        "ToplamMakaleSayısıEtiketi l L -1155"_s;
    QMap<QString, QRect> places;
    for (const QString& name : {u"Etiket0"_s, u"Etiket1"_s, u"Etiket2"_s})
        places[name] = place(name);
    for (const QString& row : rows.split(u';')) {
        const QStringList part = row.split(u' ');
        const QRect r = places[part[0]] = place(part[0]);
        const QHash<QString, int> found = {
            {u"l"_s, r.left()}, {u"t"_s, r.top()}, {u"w"_s, r.width()}, {u"h"_s, r.height()}};
        const int text = part[0] == u"MakaleMetniKutusu"_s && part[1] == u"w"_s ? list : 0;
        QVERIFY2(found[part[1]] == FormPikseli(from[part[2]] + part[3].toInt() - text), qPrintable(row));
    }
    places.remove(u"YazarListesi"_s); // within Altlık

    // Nothing overlaps, nothing is cut off.
    for (auto i = places.begin(); i != places.end(); ++i) {
        QVERIFY2(t->Form->centralWidget()->rect().contains(*i), qPrintable(i.key()));
        const auto* label = qobject_cast<const QLabel*>(&t->Bul<QWidget>(i.key()));
        QVERIFY2(!label || label->sizeHint().boundedTo(i->size()) == label->sizeHint(), qPrintable(i.key()));
        for (auto j = places.begin(); j != i; ++j)
            QVERIFY2(!i->intersects(*j), qPrintable(i.key() + u' ' + j.key()));
    }
}

void TestMainWindow::sizeGuard_data()
{
    QTest::addColumn<QSize>("size"); // with the frame, on a screen of 800 by 800
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::newRow("left") << QSize(648, 480) << QPoint(-10, 50) << QPoint(0, 50);
    QTest::newRow("a little to the right, above") << QSize(648, 480) << QPoint(158, -5) << QPoint(158, 0);
    QTest::newRow("right, below") << QSize(648, 480) << QPoint(160, 900) << QPoint(152, 320);
    QTest::newRow("larger than the screen") << QSize(900, 1000) << QPoint(-3, 20) << QPoint(-100, 0);
}

void TestMainWindow::sizeGuard()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    AyarMetni(Ayarlar::TamEkran, u"0"_s);
    t->Göster();
    const QMargins frame = t->Form->windowHandle()->frameMargins();
    t->Form->setGeometry(QRect(from, size).marginsRemoved(frame));
    QTRY_COMPARE_WITH_TIMEOUT(ÇerçeveliYer(*t->Form), QRect(to, size), 30000);
}

void TestMainWindow::windows_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<double>("points");
    QTest::addColumn<bool>("owned");
    QTest::newRow("add") << u"MakaleEkleMenüsü"_s << 9.0 << false;
    QTest::newRow("edit") << u"MakeleDeğiştirMenüsü"_s << 30.0 << true;
    QTest::newRow("delete") << u"MakaleSilMenüsü"_s << 30.0 << true;
    QTest::newRow("reference") << u"ReferansOluşturMenüsü"_s << 7.0 << false;
    QTest::newRow("settings") << u"AyarlarMenüsü1"_s << 30.0 << false;
    QTest::newRow("about") << u"HakkındaMenüsü"_s << 11.0 << false;
    QTest::newRow("faults") << u"HatalarıBildirinMenüsü"_s << 30.0 << false;
}

// They stand where they should, whole, and with every letter of their labels.
void TestMainWindow::windows()
{
    QFETCH(QString, menu);
    QFETCH(double, points);
    QFETCH(bool, owned);
    letters(points);
    AyarMetni(Ayarlar::TamEkran, u"0"_s);
    AyarMetni(Ayarlar::Sol, owned ? u"300"_s : u"1500"_s);
    AyarMetni(Ayarlar::Üst, owned ? u"450"_s : u"1500"_s);
    t->Göster();
    const QRect screen = t->Form->screen()->availableGeometry();
    const auto standsIn = [&](const QWidget& window, const QRect& over) {
        const QRect r = ÇerçeveliYer(window);
        QVERIFY(screen.contains(r));
        const QPoint middle = OrtalıYer(over, r.size());
        QCOMPARE(r.topLeft(), QPoint(qBound(0, middle.x(), screen.width() - r.width()),
                                     qBound(0, middle.y(), screen.height() - r.height())));
    };
    QVERIFY(PencereAç(
        [&] { t->Form->findChild<QAction*>(menu)->trigger(); },
        [&](QDialog& window) {
            standsIn(window, owned ? ÇerçeveliYer(*t->Form) : screen);
            const QSize least = window.minimumSizeHint();
            QCOMPARE(least.boundedTo(window.size()), least);
            for (QLabel* label : window.findChildren<QLabel*>()) {
                if (!label->buddy())
                    continue;
                const int end = label->contentsRect().right() + 1;
                label->resize(label->size() + QSize(20, 0));
                const QImage whole = label->grab().toImage();
                for (int x = end; x < whole.width(); ++x)
                    for (int y = 0; y < whole.height(); ++y)
                        QVERIFY2(whole.pixel(x, y) == whole.pixel(0, 0), qPrintable(label->text()));
            }
            const QRect over = ÇerçeveliYer(*QApplication::activeWindow());
            KutuYanıtlayıcı box(KutuYanıtlayıcı::Yanıt::Tamam, [&](QMessageBox& b) { standsIn(b, over); });
            İletiGöster(u"Deneme"_s, İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
            QCOMPARE(box.Sayı, 1);
        }));
}

void TestMainWindow::keys_data()
{
    QTest::addColumn<QString>("from"); // where the focus is
    QTest::addColumn<QKeySequence>("key");
    QTest::addColumn<QString>("word");    // in the word's box
    QTest::addColumn<QString>("article"); // that is selected
    QTest::addColumn<QString>("effect");  // the window or menu that opens, or where the focus goes
    const auto row = [](const char* name, QStringView from, const QKeySequence& key, QStringView word,
                        QStringView article, QStringView effect) {
        QTest::newRow(name) << from.toString() << key << word.toString() << article.toString()
                            << effect.toString();
    };
    constexpr QStringView titles = u"MakaleListesi", authors = u"YazarListesi", text = u"MakaleMetniKutusu",
                          word = u"BulKutusu";
    const QKeySequence find(Qt::CTRL | Qt::Key_F), all(Qt::CTRL | Qt::SHIFT | Qt::Key_F), edit(Qt::Key_F2),
        add(Qt::CTRL | Qt::Key_N), remove(Qt::Key_Delete), print(Qt::CTRL | Qt::Key_P), bar(Qt::Key_F10),
        menu(Qt::SHIFT | Qt::Key_F10);
    row("word", authors, find, u"", u"ARI", word);
    row("find in all", word, all, u"arı", u"ARI", titles);
    row("find in all, no word", word, all, u"", u"ARI", word);
    row("add", text, add, u"x", u"ARI", u"EkleFormu");
    row("edit", word, edit, u"", u"ZEYTİN", u"DeğiştirFormu ZEYTİN");
    row("edit, none selected", authors, edit, u"", u"",
        u"Lütfen, değişikilik yapmak istediğiniz makaleyi listeden seçeniz!");
    row("delete", titles, remove, u"", u"ZEYTİN", u"SilFormu ZEYTİN");
    row("delete elsewhere", authors, remove, u"", u"ZEYTİN", authors);
    row("delete a letter", word, remove, u"xy", u"ZEYTİN", word);
    row("print", titles, print, u"", u"ARI",
        u"Bilgisayarınızda yüklü bir YAZICI yok!\n\nLütfen, bir yazıcı yükleyip tekrar deneyiniz.");
    row("print, none shown", titles, print, u"", u"", titles);
    row("menu bar", text, bar, u"", u"ARI", u"AnaForm");
    row("menu of titles", titles, menu, u"", u"ARI", u"MakaleMenüsü");
    row("menu of titles, none selected", titles, menu, u"", u"", titles);
    row("menu of the text", text, menu, u"", u"ARI", u"MakaleMetniMenüsü");
    row("menu of authors", authors, menu, u"", u"ARI", authors);
}

void TestMainWindow::keys()
{
    QFETCH(QString, from);
    QFETCH(QKeySequence, key);
    QFETCH(QString, word);
    QFETCH(QString, article);
    qputenv("CUPS_SERVER", "/nonexistent/sock"); // this machine may have a printer
    t->Göster();
    QVERIFY(QTest::qWaitForWindowActive(t->Form.get(), BeklemeSınırı));
    t->Makaleler().Text(article);
    if (article.isEmpty())
        t->Metin().Text({});
    t->Bul<MetinKutusu>(u"BulKutusu"_s).Text(word);
    t->Bul<QWidget>(from).setFocus();
    QString effect;
    KutuYanıtlayıcı box(KutuYanıtlayıcı::Yanıt::Tamam);
    QTimer::singleShot(0, t->Form.get(), [&] { // the window's own loop runs this
        auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!window || qobject_cast<QMessageBox*>(window))
            return;
        effect = window->objectName();
        if (const auto* title = window->findChild<QLineEdit*>(u"MakaleBaşlığıKutusu"_s);
            title && title->isEnabled())
            effect += u' ' + title->text();
        if (auto* titles = window->findChild<QListView*>(u"MakaleListesi"_s)) {
            effect += u' ' + titles->currentIndex().data().toString();
            QTest::keyRelease(titles, Qt::Key(key[0].key())); // of the press that brought it: deletes nothing
        }
        window->reject();
    });
    QTest::keySequence(&t->Bul<QWidget>(from), key);
    if (effect.isEmpty())
        effect = box.Metin;
    if (QWidget* menu = QApplication::activePopupWidget(); menu && effect.isEmpty()) {
        effect = menu->objectName();
        menu->close();
    }
    if (effect.isEmpty())
        effect = QApplication::focusWidget() == t->Form->menuBar()
                     ? t->Form->objectName()
                     : QApplication::focusWidget()->objectName();
    QTEST(effect, "effect");
    QCOMPARE(box.Sayı, int(effect == box.Metin));
}

// The authors' caption and the menu entry of the settings have the same letter underlined.
void TestMainWindow::sharedLetter()
{
    t->Göster();
    const auto press = [this] { QTest::keyClick(t->Form->focusWidget(), Qt::Key_Y, Qt::AltModifier); };
    for (int i = 0; i < 3; ++i) {
        t->Form->activateWindow(); // as a window manager does when the other window has gone
        QVERIFY(QTest::qWaitForWindowActive(t->Form.get(), BeklemeSınırı));
        t->Bul<MetinKutusu>(u"BulKutusu"_s).setFocus();
        press();
        QVERIFY(t->Yazarlar().hasFocus());
        QTest::keyClick(&t->Yazarlar(), Qt::Key_Down);
        press();
        QVERIFY(t->Yazarlar().hasFocus());
        QVERIFY(PencereAç(press, [](QDialog& box) { QCOMPARE(box.objectName(), u"AyarlarFormu"_s); }));
    }
}

void TestMainWindow::exitQuestion()
{
    t->Göster();
    t->Yazarlar().ListIndex(2);
    {
        KutuYanıtlayıcı hayır(KutuYanıtlayıcı::Yanıt::Hayır);
        QTest::keyClick(t->Form.get(), Qt::Key_Escape);
        QTRY_COMPARE_WITH_TIMEOUT(hayır.Sayı, 1, BeklemeSınırı);
        QCOMPARE(hayır.Metin, u"Programdan çıkmak istediğinizden emin misiniz?"_s);
        QVERIFY(!t->Form->Kapat(KapanışNedeni::OturumSonu));
        QCOMPARE(hayır.Sayı, 2);
    }
    { // a second request while the question stands is passed over
        KutuYanıtlayıcı hayır(KutuYanıtlayıcı::Yanıt::Hayır, [this](QMessageBox&) { t->Form->close(); });
        t->Bul<QPushButton>(u"ÇıkışButonu"_s).click();
        QCOMPARE(hayır.Sayı, 1);
    }
    QVERIFY(t->Form->isVisible());
    QVERIFY(AyarMetni(Ayarlar::SonYazar).isNull());
    // The system ends the program while the question stands.
    KutuYanıtlayıcı bitir(KutuYanıtlayıcı::Yanıt::Hayır,
                          [this](QMessageBox&) { t->Form->Kapat(KapanışNedeni::GörevYöneticisi); });
    QVERIFY(t->Form->close());
    QCOMPARE(AyarMetni(Ayarlar::SonYazar), u"2"_s);
}

void TestMainWindow::exitSaves_data()
{
    QTest::addColumn<int>("author");
    QTest::addColumn<int>("state"); // 0 normal, 1 minimised, 2 maximised
    QTest::addColumn<QString>("savedAuthor");
    QTest::newRow("first author, normal") << 0 << 0 << u"old"_s;
    QTest::newRow("third author, maximised") << 2 << 2 << u"2"_s;
    QTest::newRow("none, minimised") << -1 << 1 << u"old"_s;
}

void TestMainWindow::exitSaves()
{
    QFETCH(int, author);
    QFETCH(int, state);
    AyarMetni(Ayarlar::TamEkran, QString::number(state));
    AyarMetni(Ayarlar::Sol, u"1500"_s);
    AyarMetni(Ayarlar::Üst, u"1200"_s);
    t->Göster();
    for (const SayıAnahtarı ayar :
         std::initializer_list<SayıAnahtarı>{Ayarlar::SonYazar, Ayarlar::Sol, Ayarlar::Üst})
        AyarMetni(ayar, u"old"_s);
    t->Yazarlar().ListIndex(author);
    if (state == 1)
        t->Form->setWindowState(Qt::WindowMinimized);
    QVERIFY(t->Form->Kapat(KapanışNedeni::GörevYöneticisi));
    QTEST(AyarMetni(Ayarlar::SonYazar), "savedAuthor");
    QCOMPARE(AyarMetni(Ayarlar::TamEkran), QString::number(state));
    QCOMPARE(AyarMetni(Ayarlar::Sol), state == 0 ? u"1500"_s : u"old"_s);
    QCOMPARE(AyarMetni(Ayarlar::Üst), state == 0 ? u"1200"_s : u"old"_s);
    // The library is let go of, and its account has lived for this run only.
    QVERIFY(!Veritabanı && !ÇalışmaAlanı);
    QCOMPARE(SahipÇalışmaAlanı(*AçıkOturum.Motor).Users().Tümü().size(), std::size_t(1));
}

void TestMainWindow::closedWhileFilling()
{
    QList<Makale> çok;
    for (int i = 0; i < 20000; ++i)
        çok.append({u"AAA YAZAR"_s, u"BAŞLIK %1"_s.arg(i), u"metin"_s});
    Veritabanı->TekİşlemdeYap([&] { Ekle(*Veritabanı, çok); });
    QTimer::singleShot(0, qApp, [this] { t->Form->Kapat(KapanışNedeni::GörevYöneticisi); });
    t->Göster();
    QVERIFY(t->Form->Bitti() && !t->Form->isVisible() && !Veritabanı);
}

QTEST_MAIN(TestMainWindow)
#include "test_forms_main.moc"

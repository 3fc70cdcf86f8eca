// The main window: loading, browsing, layout, exit.
#include "DenemeProgramı.h"

#include "app/Ayarlar.h"
#include "app/Görünüm.h"
#include "app/OrtakDeğişkenlerModülü.h"

#include <QAction>
#include <QDialog>
#include <QMessageBox>
#include <QTest>

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
    void init() { t = std::make_unique<AnaFormDenemesi>(Örnek); }
    void cleanup() { t.reset(); }
    void controlsAndMenus();
    void emptyLibrary();
    void browsing();
    void lastAuthor_data();
    void lastAuthor();
    void displaySettings_data();
    void displaySettings();
    void layout_data();
    void layout();
    void sharedLetter();
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
}

void TestMainWindow::browsing()
{
    t->Göster();
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

void TestMainWindow::lastAuthor_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("index");
    QTest::newRow("absent") << QString() << 0;
    QTest::newRow("second") << u"1"_s << 1;
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
    QCOMPARE(t->Makaleler().ListCount() > 0, index >= 0);
}

void TestMainWindow::displaySettings_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<int>("points");
    QTest::addColumn<QColor>("background");
    QTest::newRow("defaults") << QString() << QString() << 11 << QColor(Qt::white);
    QTest::newRow("chosen") << u"4"_s << u"1"_s << 14 << QColor(255, 0, 255);
    QTest::newRow("outside") << u"9"_s << u"-3"_s << 9 << QColor(Qt::black);
}

void TestMainWindow::displaySettings()
{
    QFETCH(QString, size);
    QFETCH(QString, colour);
    if (!size.isNull()) {
        AyarMetni(Ayarlar::YazıBoyutu, size);
        AyarMetni(Ayarlar::ZeminRengi, colour);
    }
    AyarMetni(Ayarlar::YazıTipi, u"DejaVu Sans"_s);
    t->Göster();
    QCOMPARE(t->Metin().FontName(), u"DejaVu Sans"_s);
    QTEST(t->Metin().FontSize(), "points");
    const QPalette palet = t->Metin().palette();
    QTEST(palet.color(QPalette::Base), "background");
    QVERIFY(palet.color(QPalette::Text) != palet.color(QPalette::Base));
}

void TestMainWindow::layout_data()
{
    QTest::addColumn<QSize>("asked"); // pixels of 15 twips
    QTest::addColumn<QSize>("outer");
    QTest::newRow("below the minimum") << QSize(100, 100) << QSize(648, 480);
    QTest::newRow("usual") << QSize(1000, 700) << QSize(1000, 700);
    QTest::newRow("large") << QSize(3840, 2160) << QSize(3840, 2160);
}

void TestMainWindow::layout()
{
    QFETCH(QSize, asked);
    QFETCH(QSize, outer);
    AyarMetni(Ayarlar::TamEkran, u"1"_s); // anything but 2 is a normal window
    t->Göster();
    QVERIFY(!t->Form->isMaximized());
    t->Form->resize(asked - (t->Form->frameGeometry().size() - t->Form->size()));
    QTRY_COMPARE(t->Form->frameGeometry().size(), outer);
    const int w = outer.width() * 15, h = outer.height() * 15;
    QCOMPARE(place(u"YazarListesi"_s).width(), Piksel(w / 3));
    QCOMPARE(place(u"MakaleBulKutusu"_s).top(), Piksel(h - 1490));
    QCOMPARE(place(u"MakaleMetniKutusu"_s), QRect(Piksel(w / 3 + 495), place(u"YazarListesi"_s).top(),
                                                  Piksel(w - w / 3 - 940), Piksel(h - 2355)));
    QCOMPARE(place(u"TemizleButonu"_s).topLeft(), QPoint(Piksel(w / 3 + 2275), Piksel(h - 1350)));
    QCOMPARE(place(u"ÇıkışButonu"_s).left(), Piksel(w - 1560));

    // Nothing overlaps, nothing is cut off.
    QStringList adlar = {u"Altlık"_s,
                         u"YazarBulKutusu"_s,
                         u"MakaleListesi"_s,
                         u"MakaleBulKutusu"_s,
                         u"MakaleMetniKutusu"_s,
                         u"BulKutusu"_s,
                         u"BulButonu"_s,
                         u"TemizleButonu"_s,
                         u"TümündeBulButonu"_s,
                         u"ÇıkışButonu"_s,
                         u"ToplamYazarSayısıEtiketi"_s,
                         u"ToplamMakaleSayısıEtiketi"_s};
    for (int i = 0; i < 6; ++i)
        adlar.append(u"Etiket%1"_s.arg(i));
    for (int i = 0; i < adlar.size(); ++i) {
        QVERIFY2(t->Form->centralWidget()->rect().contains(place(adlar[i])), qPrintable(adlar[i]));
        for (int j = 0; j < i; ++j)
            QVERIFY2(!place(adlar[i]).intersects(place(adlar[j])), qPrintable(adlar[i] + u' ' + adlar[j]));
    }
}

// The authors' caption and the menu entry of the settings have the same letter underlined.
void TestMainWindow::sharedLetter()
{
    t->Göster();
    const auto press = [this] { QTest::keyClick(t->Form->focusWidget(), Qt::Key_Y, Qt::AltModifier); };
    for (int i = 0; i < 3; ++i) {
        t->Form->activateWindow(); // as a window manager does when the other window has gone
        QVERIFY(QTest::qWaitForWindowActive(t->Form.get()));
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
        QTRY_COMPARE(hayır.Sayı, 1);
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
    AyarMetni(Ayarlar::SonYazar, u"old"_s);
    AyarMetni(Ayarlar::Sol, u"old"_s);
    t->Yazarlar().ListIndex(author);
    if (state == 1)
        t->Form->setWindowState(Qt::WindowMinimized);
    QVERIFY(t->Form->Kapat(KapanışNedeni::GörevYöneticisi));
    QTEST(AyarMetni(Ayarlar::SonYazar), "savedAuthor");
    QCOMPARE(AyarMetni(Ayarlar::TamEkran), QString::number(state));
    QCOMPARE(AyarMetni(Ayarlar::Sol), state == 0 ? u"1500"_s : u"old"_s);
    // The library is let go of, and its account has lived for this run only.
    QVERIFY(!Veritabanı && !ÇalışmaAlanı);
    QCOMPARE(SahipÇalışmaAlanı(*Motor).Users().Tümü().size(), std::size_t(1));
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
#include "test_forms_ana.moc"

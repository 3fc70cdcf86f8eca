#include "DenemeProgramı.h"

#include "app/Ayarlar.h"
#include "app/Görünüm.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "forms/AnaForm.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace {

const QList<Makale> Örnek = {
    {QStringLiteral("ALİ KAYA"), QStringLiteral("ZEYTİN"),
     QStringLiteral("Zeytin ağacı uzun yaşar. Deniz kıyısında.")},
    {QStringLiteral("ALİ KAYA"), QStringLiteral("ARI"), QStringLiteral("Arı çiçekten bal yapar.")},
    {QStringLiteral("ALİ KAYAALP"), QStringLiteral("DENİZ"),
     QStringLiteral("Bir deniz gördüm, o deniz maviydi.")},
    {QStringLiteral("IŞIL SU"), QStringLiteral("IŞIK"), QStringLiteral("Işık ve deniz.")},
    {QStringLiteral("O'NEİL KESME"), QStringLiteral("KESME"), QStringLiteral("Kesmeli.")},
};

QString yol(const char* ad)
{
    return QString::fromUtf8(ad);
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void controlsAndMenus();
    void emptyLibrary();
    void browsing();
    void lastAuthor_data();
    void lastAuthor();
    void brokenQueryShowsNothing();
    void displaySettings_data();
    void displaySettings();
    void layout_data();
    void layout();
    void minimumSize();
    void exitQuestion();
    void exitSaves_data();
    void exitSaves();
    void closedWhileFilling();

private:
    void show(const QList<Makale>& articles = Örnek);
    ListeKutusu& list(const char* name)
    {
        return *static_cast<ListeKutusu*>(form->findChild<QListView*>(yol(name)));
    }
    QLabel& label(const char* name) { return *form->findChild<QLabel*>(yol(name)); }
    QString shownText() { return form->findChild<QPlainTextEdit*>(yol("MakaleMetniKutusu"))->toPlainText(); }
    QRect place(const char* name)
    {
        const auto* w = form->findChild<QWidget*>(yol(name));
        return {w->mapTo(form->centralWidget(), QPoint(0, 0)), w->size()};
    }

    std::unique_ptr<DenemeProgramı> program;
    std::unique_ptr<AnaForm> form;
};

void TestMainWindow::init()
{
    program = std::make_unique<DenemeProgramı>(Örnek);
}

void TestMainWindow::cleanup()
{
    form.reset();
    program.reset();
}

void TestMainWindow::show(const QList<Makale>& articles)
{
    if (&articles != &Örnek)
        program.reset(), program = std::make_unique<DenemeProgramı>(articles);
    form = std::make_unique<AnaForm>();
    form->Göster();
}

void TestMainWindow::controlsAndMenus()
{
    show();
    QCOMPARE(form->windowTitle(), AnaPencereBaşlığı);
    QWidget* kontrol = &list("YazarListesi");
    const QStringList sıra = {yol("YazarBulKutusu"),    yol("MakaleListesi"), yol("MakaleBulKutusu"),
                              yol("MakaleMetniKutusu"), yol("BulKutusu"),     yol("ÇıkışButonu")};
    for (const QString& ad : sıra) { // the find buttons are disabled and so passed over
        do
            kontrol = kontrol->nextInFocusChain();
        while (!(kontrol->focusPolicy() & Qt::TabFocus) || !kontrol->isEnabled() || !kontrol->isVisible());
        QCOMPARE(kontrol->objectName(), ad);
    }
    const QStringList bağlılar = {yol("YazarListesi"),    yol("YazarBulKutusu"),    yol("MakaleListesi"),
                                  yol("MakaleBulKutusu"), yol("MakaleMetniKutusu"), yol("BulKutusu")};
    for (int i = 0; i < 6; ++i) {
        const QWidget* bağlı = label(qPrintable(QStringLiteral("Etiket%1").arg(i))).buddy();
        QCOMPARE(bağlı->objectName(), bağlılar[i]);
        QVERIFY(!bağlı->accessibleName().isEmpty() && !bağlı->accessibleName().contains(u'&'));
    }
    QCOMPARE(form->findChild<QAction*>(yol("MakeleDeğiştirMenüsü"))->text(),
             yol("Seçili Makaleyi &Değiştir"));
    QCOMPARE(form->findChild<QMenu*>(yol("YardımMenüsü"))->actions().size(), 5);
}

void TestMainWindow::emptyLibrary()
{
    show({});
    QCOMPARE(list("YazarListesi").ListCount(), 0);
    QCOMPARE(label("ToplamYazarSayısıEtiketi").text(), yol("Toplam: 0"));
    QCOMPARE(label("ToplamMakaleSayısıEtiketi").text(), yol("Toplam: 0"));
    QTest::keyClick(&list("YazarListesi"), Qt::Key_Down);
    QVERIFY(shownText().isEmpty());
}

void TestMainWindow::browsing()
{
    show();
    ListeKutusu& yazarlar = list("YazarListesi");
    ListeKutusu& makaleler = list("MakaleListesi");
    QCOMPARE(yazarlar.ListCount(), 4);
    QCOMPARE(yazarlar.Text(), yol("ALİ KAYA"));
    QCOMPARE(makaleler.ListCount(), 2);
    QCOMPARE(makaleler.Text(), yol("ARI"));
    QVERIFY(shownText().startsWith(yol("Arı")));
    QTest::keyClick(&makaleler, Qt::Key_Down);
    QVERIFY(shownText().startsWith(yol("Zeytin")));
    yazarlar.ListIndex(2);
    QCOMPARE(shownText(), yol("Işık ve deniz."));
    QCOMPARE(label("ToplamMakaleSayısıEtiketi").text(), yol("Toplam: 1"));

    // A press on the selected author brings its articles back after the list was emptied.
    makaleler.Clear();
    QTest::mouseClick(yazarlar.viewport(), Qt::LeftButton, {},
                      yazarlar.visualRect(yazarlar.currentIndex()).center());
    QCOMPARE(makaleler.ListCount(), 1);

    // An empty table leaves the author list as it was.
    Recordset kayıtlar = Veritabanı->OpenRecordset(yol("SELECT * FROM [Makaleler]"));
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext())
        kayıtlar.Delete();
    form->YazarListesiYükle();
    QCOMPARE(yazarlar.ListCount(), 4);
}

void TestMainWindow::lastAuthor_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("index");
    QTest::newRow("absent") << QString() << 0;
    QTest::newRow("second") << QStringLiteral("1") << 1;
    QTest::newRow("beyond the last") << QStringLiteral("4") << -1;
    QTest::newRow("huge") << QStringLiteral("1e30") << -1;
    QTest::newRow("negative") << QStringLiteral("-1") << -1;
    QTest::newRow("nonsense") << QStringLiteral("son") << 0;
}

void TestMainWindow::lastAuthor()
{
    QFETCH(QString, stored);
    QFETCH(int, index);
    if (!stored.isNull())
        AyarYaz(u"Son Yazar", stored);
    show();
    QCOMPARE(list("YazarListesi").ListIndex(), index);
    QCOMPARE(list("MakaleListesi").ListCount() > 0, index >= 0);
}

void TestMainWindow::brokenQueryShowsNothing()
{
    show();
    list("YazarListesi").ListIndex(3);
    QCOMPARE(list("YazarListesi").Text(), yol("O'NEİL KESME"));
    QCOMPARE(list("MakaleListesi").ListCount(), 0);
    QVERIFY(shownText().isEmpty());
    QCOMPARE(label("ToplamMakaleSayısıEtiketi").text(), yol("Toplam: 0"));
    list("YazarListesi").ListIndex(0);
    QCOMPARE(list("MakaleListesi").ListCount(), 2);
}

void TestMainWindow::displaySettings_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<int>("points");
    QTest::addColumn<QColor>("background");
    QTest::newRow("defaults") << QString() << QString() << 11 << QColor(Qt::white);
    QTest::newRow("chosen") << QStringLiteral("4") << QStringLiteral("1") << 14 << QColor(255, 0, 255);
    QTest::newRow("outside") << QStringLiteral("9") << QStringLiteral("-3") << 9 << QColor(Qt::black);
}

void TestMainWindow::displaySettings()
{
    QFETCH(QString, size);
    QFETCH(QString, colour);
    if (!size.isNull()) {
        AyarYaz(u"Yazi Boyutu", size);
        AyarYaz(u"Zemin Rengi", colour);
    }
    AyarYaz(u"Yazi Tipi", QStringLiteral("DejaVu Sans"));
    show();
    const auto* metin = form->findChild<QPlainTextEdit*>(yol("MakaleMetniKutusu"));
    QCOMPARE(metin->font().family(), yol("DejaVu Sans"));
    QTEST(metin->font().pointSize(), "points");
    QTEST(metin->palette().color(QPalette::Base), "background");
    QVERIFY(metin->palette().color(QPalette::Text) != metin->palette().color(QPalette::Base));
}

void TestMainWindow::layout_data()
{
    QTest::addColumn<QSize>("outer"); // pixels of 15 twips
    QTest::newRow("smallest") << QSize(648, 480);
    QTest::newRow("usual") << QSize(1000, 700);
    QTest::newRow("large") << QSize(3840, 2160);
}

void TestMainWindow::layout()
{
    QFETCH(QSize, outer);
    AyarYaz(u"Tam Ekran", QStringLiteral("0"));
    show();
    form->resize(outer - (form->frameGeometry().size() - form->size()));
    QTRY_COMPARE(form->frameGeometry().size(), outer);
    const int w = outer.width() * 15, h = outer.height() * 15;
    QCOMPARE(place("YazarListesi").width(), Piksel(w / 3));
    QCOMPARE(place("MakaleBulKutusu").top(), Piksel(h - 1490));
    QCOMPARE(place("MakaleMetniKutusu"), QRect(Piksel(w / 3 + 495), place("YazarListesi").top(),
                                               Piksel(w - w / 3 - 940), Piksel(h - 2355)));
    QCOMPARE(place("TemizleButonu").topLeft(), QPoint(Piksel(w / 3 + 2275), Piksel(h - 1350)));
    QCOMPARE(place("ÇıkışButonu").left(), Piksel(w - 1560));

    // Nothing overlaps, nothing is cut off.
    const std::initializer_list<const char*> kontroller = {"Altlık",
                                                           "YazarBulKutusu",
                                                           "MakaleListesi",
                                                           "MakaleBulKutusu",
                                                           "MakaleMetniKutusu",
                                                           "BulKutusu",
                                                           "BulButonu",
                                                           "TemizleButonu",
                                                           "TümündeBulButonu",
                                                           "ÇıkışButonu",
                                                           "Etiket0",
                                                           "Etiket1",
                                                           "Etiket2",
                                                           "Etiket3",
                                                           "Etiket4",
                                                           "Etiket5",
                                                           "ToplamYazarSayısıEtiketi",
                                                           "ToplamMakaleSayısıEtiketi"};
    for (auto a = kontroller.begin(); a != kontroller.end(); ++a) {
        QVERIFY2(form->centralWidget()->rect().contains(place(*a)), *a);
        for (auto b = a + 1; b != kontroller.end(); ++b)
            QVERIFY2(!place(*a).intersects(place(*b)), qPrintable(yol(*a) + u' ' + yol(*b)));
    }
}

void TestMainWindow::minimumSize()
{
    AyarYaz(u"Tam Ekran", QStringLiteral("1"));
    show();
    QVERIFY(!form->isMaximized());
    form->resize(100, 100);
    QTRY_COMPARE(form->frameGeometry().size(), QSize(648, 480));
}

void TestMainWindow::exitQuestion()
{
    show();
    list("YazarListesi").ListIndex(2);
    {
        KutuYanıtlayıcı hayır(KutuYanıtlayıcı::Yanıt::Hayır);
        QTest::keyClick(form.get(), Qt::Key_Escape);
        QTRY_COMPARE(hayır.Sayı, 1);
        QCOMPARE(hayır.Metin, yol("Programdan çıkmak istediğinizden emin misiniz?"));
    }
    QVERIFY(form->isVisible());
    QVERIFY(AyarOku(u"Son Yazar", {}).isNull());
    {
        KutuYanıtlayıcı hayır(KutuYanıtlayıcı::Yanıt::Kapat);
        QVERIFY(!form->Kapat(KapanışNedeni::OturumSonu));
        QCOMPARE(hayır.Sayı, 1);
    }
    { // the system ends the program while the question stands
        KutuYanıtlayıcı evet(KutuYanıtlayıcı::Yanıt::Hayır,
                             [this](QMessageBox&) { form->Kapat(KapanışNedeni::GörevYöneticisi); });
        QVERIFY(form->close());
        QCOMPARE(evet.Sayı, 1);
    }
    QCOMPARE(AyarOku(u"Son Yazar", {}), QStringLiteral("2"));
}

void TestMainWindow::exitSaves_data()
{
    QTest::addColumn<int>("author");
    QTest::addColumn<int>("state"); // 0 normal, 1 minimised, 2 maximised
    QTest::addColumn<QString>("savedAuthor");
    QTest::newRow("first author, normal") << 0 << 0 << QStringLiteral("old");
    QTest::newRow("third author, maximised") << 2 << 2 << QStringLiteral("2");
    QTest::newRow("none, minimised") << -1 << 1 << QStringLiteral("old");
}

void TestMainWindow::exitSaves()
{
    QFETCH(int, author);
    QFETCH(int, state);
    AyarYaz(u"Tam Ekran", QString::number(state));
    AyarYaz(u"Sol", QStringLiteral("1500"));
    AyarYaz(u"Ust", QStringLiteral("1200"));
    show();
    AyarYaz(u"Son Yazar", QStringLiteral("old"));
    AyarYaz(u"Sol", QStringLiteral("old"));
    list("YazarListesi").ListIndex(author);
    if (state == 1)
        form->setWindowState(Qt::WindowMinimized);
    QVERIFY(form->Kapat(KapanışNedeni::GörevYöneticisi));
    QTEST(AyarOku(u"Son Yazar", {}), "savedAuthor");
    QCOMPARE(AyarOku(u"Tam Ekran", {}), QString::number(state));
    QCOMPARE(AyarOku(u"Sol", {}), state == 0 ? QStringLiteral("1500") : QStringLiteral("old"));

    // The library is let go of, and its account has lived for this run only.
    QVERIFY(!Veritabanı && !ÇalışmaAlanı);
    const std::vector<User> hesaplar = SahipÇalışmaAlanı(*Motor).Users().Tümü();
    QCOMPARE(hesaplar.size(), std::size_t(1));
}

void TestMainWindow::closedWhileFilling()
{
    QList<Makale> çok;
    for (int i = 0; i < 20000; ++i)
        çok.append(
            {QStringLiteral("ÇOK YAZAR"), QStringLiteral("BAŞLIK %1").arg(i), QStringLiteral("metin")});
    program.reset();
    program = std::make_unique<DenemeProgramı>(QList<Makale>());
    Veritabanı->TekİşlemdeYap([&] { Ekle(*Veritabanı, çok); });
    form = std::make_unique<AnaForm>();
    QTimer::singleShot(0, form.get(), [this] { form->Kapat(KapanışNedeni::GörevYöneticisi); });
    form->Göster();
    QVERIFY(!Veritabanı);
    QVERIFY(!form->isVisible() || list("MakaleListesi").ListCount() <= 20000);
}

QTEST_MAIN(TestMainWindow)
#include "test_forms_ana.moc"

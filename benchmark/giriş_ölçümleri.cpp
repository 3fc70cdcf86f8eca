// Bringing articles in and taking them out: the windows for it, and text from files.
#include "Ölçümler.h"

#include "app/OrtakDeğişkenlerModülü.h"
#include "controls/AçılırListe.h"
#include "controls/ListeKutusu.h"
#include "controls/MetinKutusu.h"
#include "controls/ZenginMetinKutusu.h"
#include "document/MetinDosyası.h"
#include "forms/AnaForm.h"
#include "forms/EkleFormu.h"
#include "forms/SilFormu.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTextCursor>
#include <QTimer>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <map>
#include <memory>
#include <optional>
#include <unistd.h>

namespace {

constexpr Amaç TıklamaAmacı{Amaç::Tür::Süre, 100};
constexpr Amaç RtfAmacı{Amaç::Tür::Süre, 500};
constexpr qsizetype MetinBoyu = 5500; // UTF-16 units; some 6 KB as UTF-8
constexpr qsizetype RtfBoyu = 10'000'000;
constexpr int Tekrar = 15;
constexpr int RtfTekrarı = 7;

const QString Yazar = QStringLiteral("ÖLÇÜM YAZARI"); // of the articles that come and go here
const QString EklenenlerSql = QStringLiteral("SELECT * FROM [Makaleler] WHERE [YazarAdi]='%1'").arg(Yazar);
const QString GirişDüğmesi = QStringLiteral("EkleKaydetButonu"); // begins and saves
const QString TümMakalelerSql = QStringLiteral("SELECT * FROM [Makaleler]");
const QString YazarlarSql = QStringLiteral("SELECT DISTINCT [YazarAdi] FROM [Makaleler]");
const QString BaşlıklarSql =
    QStringLiteral("SELECT [MakaleBasligi] FROM [Makaleler] ORDER BY [MakaleBasligi] ASC");

void boya()
{
    QCoreApplication::processEvents();
}

template<class T> T& bul(const QWidget& pencere, const QString& ad)
{
    auto* bulunan = static_cast<T*>(pencere.findChild<QWidget*>(ad));
    Sağla(bulunan != nullptr, "a control of that name");
    return *bulunan;
}

/// Presses a button as the user does; over when the window shows what came of it.
void bas(QWidget& pencere, const QString& düğme)
{
    auto& bulunan = bul<QPushButton>(pencere, düğme);
    Sağla(bulunan.isEnabled(), "an enabled button");
    bulunan.click();
    boya();
}

qint64 değerleriOku(const QString& sql, QStringView sütun)
{
    Recordset kayıtlar = Veritabanı->OpenRecordset(sql);
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext())
        kayıtlar.Fields(sütun).Value();
    return kayıtlar.RecordCount();
}

Makale yeniMakale(int sıra)
{
    static const QString metin = MetinÜreteci(5).Metin(MetinBoyu);
    return {Yazar, QStringLiteral("ÖLÇÜM MAKALESİ %1").arg(sıra), metin, QStringLiteral("Ankara"),
            QStringLiteral("Şubat 2003")};
}

qint64 eklenenSayısı()
{
    return Veritabanı->OpenRecordset(EklenenlerSql).RecordCount();
}

void eklenenleriSil()
{
    Veritabanı->TekİşlemdeYap([] {
        Recordset kayıtlar = Veritabanı->OpenRecordset(EklenenlerSql);
        for (; !kayıtlar.Eof(); kayıtlar.MoveNext())
            kayıtlar.Delete();
    });
    Sağla(eklenenSayısı() == 0, "the library as it was");
}

/// Writes an article's text into a new file, all the way to the disk.
class TekYazma
{
public:
    void Hazırla() const { QFile::remove(yol_); }
    void Yaz() const
    {
        const int no = open(QFile::encodeName(yol_).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                            S_IRUSR | S_IWUSR);
        const bool tamam =
            no >= 0 &&
            write(no, baytlar_.constData(), static_cast<std::size_t>(baytlar_.size())) == baytlar_.size() &&
            fsync(no) == 0;
        close(no);
        Sağla(tamam, "a synced file");
    }
    ~TekYazma() { Hazırla(); }

private:
    QString yol_ = ProgramKlasörü + QStringLiteral("tek_yazma");
    QByteArray baytlar_ = yeniMakale(0).Metin.toUtf8();
};

/// A row of something that is done to one article, against one synced write of such an article.
void makaleyleÖlç(const PencereOrtamı& ortam, const QString& ad, const std::function<void()>& hazırlık,
                  const std::function<void()>& iş, const std::optional<Amaç>& hedef = {})
{
    const TekYazma yazma;
    Ölçüm ölçüm{ad,     iş,   QStringLiteral("metni tek seferde diske yazma"), [&yazma] { yazma.Yaz(); },
                Tekrar, hedef};
    ölçüm.İşHazırlığı = hazırlık;
    ölçüm.TabanHazırlığı = [&yazma] { yazma.Hazırla(); };
    ortam.Çizelge.Satır(ölçüm);
}

void doldur(EkleFormu& form, const Makale& makale)
{
    bul<AçılırListe>(form, QStringLiteral("YazarAdıListesi")).Text(makale.Yazar);
    bul<MetinKutusu>(form, QStringLiteral("MakaleBaşlığıKutusu")).Text(makale.Başlık);
    bul<MetinKutusu>(form, QStringLiteral("YayımYeriKutusu")).Text(makale.Yer);
    bul<MetinKutusu>(form, QStringLiteral("YayımTarihiKutusu")).Text(makale.Tarih);
    bul<ZenginMetinKutusu>(form, QStringLiteral("MakaleMetniKutusu")).Text(makale.Metin);
}

/// Answers the next message box with yes.
void evetDenecek()
{
    QTimer::singleShot(0, [] {
        if (auto* kutu = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            kutu->button(QMessageBox::Yes)->click();
    });
}

/// A row of making a window and showing it, against the query behind its list.
template<class Form, class Liste>
void açmayıÖlç(const PencereOrtamı& ortam, const QString& ad, const QString& liste, const QString& sql,
               QStringView sütun)
{
    std::unique_ptr<Form> form;
    qint64 satırlar = 0;
    Ölçüm ölçüm{ad,
                [&] {
                    if constexpr (std::is_constructible_v<Form, AnaPencere&>)
                        form = std::make_unique<Form>(ortam.Pencere);
                    else // its owner
                        form = std::make_unique<Form>(ortam.Pencere, ortam.Pencere);
                    form->show();
                    boya();
                },
                QStringLiteral("sorgu ve değerlerini okuma"),
                [&] { satırlar = değerleriOku(sql, sütun); },
                Tekrar,
                TıklamaAmacı};
    ölçüm.İşHazırlığı = [&form] { form.reset(); };
    ortam.Çizelge.Satır(ölçüm);
    Sağla(satırlar > 0 && bul<Liste>(*form, liste).ListCount() == satırlar, "a full list");
}

/// Running text as RTF the way word processors write it: runs in groups of their own, each with all of
/// its format, some of them bold, in italics, or in another font.
class RtfÜreteci
{
public:
    /// Adds paragraphs until there are so many bytes.
    void Üret(qsizetype bayt)
    {
        while (Rtf.size() < bayt)
            paragraf();
        Rtf += '}';
    }
    QByteArray Rtf = "{\\rtf1\\adeflang1025\\ansi\\ansicpg1254\\uc1\\deff0\\deflang1055"
                     "{\\fonttbl{\\f0\\froman\\fcharset162\\fprq2 Times New Roman;}"
                     "{\\f1\\fswiss\\fcharset162\\fprq2 Arial;}}"
                     "{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue255;}"
                     "{\\stylesheet{\\ql \\fs24\\lang1055 \\snext0 Normal;}}\r\n";
    QString Metin;    // what the RTF should read as
    int Parçalar = 0; // runs

private:
    void paragraf()
    {
        Rtf += "\\pard\\plain \\ltrpar\\qj \\li0\\ri0\\sa120\\sl360\\slmult1\\widctlpar\\itap0 ";
        const QString satır = üreteç_.Metin(ParagrafBoyu).replace(u'\n', u' ');
        for (qsizetype yer = 0; yer < satır.size(); yer += ParçaBoyu)
            parça(QStringView(satır).sliced(yer, std::min(ParçaBoyu, satır.size() - yer)));
        Rtf += "{\\f0\\fs24\\lang1055\\par }\r\n";
        Metin += satır + u'\n';
    }
    void parça(QStringView harfler)
    {
        static constexpr std::array biçimler = {"", "\\b", "", "\\i", "\\f1\\fs22\\cf2"};
        Rtf += "{\\f0\\fs24\\cf1\\lang1055\\langfe1033";
        Rtf += biçimler[static_cast<std::size_t>(Parçalar++) % biçimler.size()];
        Rtf += "\\insrsid4478522 ";
        for (const QChar harf : harfler) {
            if (harf.unicode() < 0x80)
                Rtf += harf.toLatin1();
            else
                Rtf += Kodlar.at(harf.unicode());
        }
        Rtf += '}';
    }

    static constexpr qsizetype ParagrafBoyu = 700;
    static constexpr qsizetype ParçaBoyu = 60;
    inline static const std::map<char16_t, const char*> Kodlar = {
        {u'ç', "\\'e7"}, {u'ğ', "\\'f0"}, {u'ı', "\\'fd"}, {u'ö', "\\'f6"}, {u'ş', "\\'fe"}, {u'ü', "\\'fc"},
        {u'Ç', "\\'c7"}, {u'Ğ', "\\'d0"}, {u'İ', "\\'dd"}, {u'Ö', "\\'d6"}, {u'Ş', "\\'de"}, {u'Ü', "\\'dc"}};
    MetinÜreteci üreteç_{3};
};

} // namespace

void GirişPencereleriniÖlç(const PencereOrtamı& ortam)
{
    açmayıÖlç<EkleFormu, AçılırListe>(ortam, QStringLiteral("Ekleme penceresini açma"),
                                      QStringLiteral("YazarAdıListesi"), YazarlarSql, u"YazarAdi");
    açmayıÖlç<SilFormu, ListeKutusu>(ortam, QStringLiteral("Silme penceresini açma"),
                                     QStringLiteral("MakaleListesi"), BaşlıklarSql, u"MakaleBasligi");
}

void GirişiÖlç(const PencereOrtamı& ortam)
{
    EkleFormu form(ortam.Pencere);
    form.show();
    Ölçüm ölçüm{QStringLiteral("Girişe başlama"),
                [&form] {
                    bas(form, GirişDüğmesi);
                    Sağla(form.GirişDurumunda(), "an entry");
                },
                QStringLiteral("tüm başlıkları okuma"),
                [] { Sağla(değerleriOku(BaşlıklarSql, u"MakaleBasligi") > 0, "titles"); },
                Tekrar,
                TıklamaAmacı};
    ölçüm.İşHazırlığı = [&form] {
        if (form.GirişDurumunda())
            bas(form, QStringLiteral("İptalKapatButonu"));
    };
    ortam.Çizelge.Satır(ölçüm);
}

void KaydetmeyiÖlç(const PencereOrtamı& ortam)
{
    int sıra = 0;
    EkleFormu form(ortam.Pencere);
    form.show();
    const auto başla = [&] {
        bas(form, GirişDüğmesi);
        doldur(form, yeniMakale(sıra++));
        boya();
    };
    const auto kaydet = [&form] {
        bas(form, GirişDüğmesi);
        Sağla(!form.GirişDurumunda(), "a saved article");
    };
    makaleyleÖlç(ortam, QStringLiteral("Makale kaydetme"), başla, kaydet, TıklamaAmacı);
    Sağla(bul<ListeKutusu>(ortam.Pencere, QStringLiteral("YazarListesi")).ÖnekleBul(Yazar) >= 0,
          "the author in the main window");

    std::optional<Recordset> kayıtlar;
    makaleyleÖlç(
        ortam, QStringLiteral("Kaydetme, yalnız kitaplıkta"),
        [&kayıtlar] { kayıtlar = Veritabanı->OpenRecordset(TümMakalelerSql); },
        [&] { KaydıEkle(*kayıtlar, yeniMakale(sıra++)); });
    kayıtlar.reset();
    Sağla(eklenenSayısı() == sıra, "all articles saved");
    eklenenleriSil();
}

void SilmeyiÖlç(const PencereOrtamı& ortam)
{
    constexpr int silinenler = Tekrar + 1; // of one row
    Veritabanı->TekİşlemdeYap([] {
        Recordset kayıtlar = Veritabanı->OpenRecordset(TümMakalelerSql);
        for (int i = 0; i < 2 * silinenler; ++i)
            KaydıEkle(kayıtlar, yeniMakale(i));
    });
    int sıra = 0;
    SilFormu form(ortam.Pencere, ortam.Pencere);
    form.show();
    const auto seç = [&] {
        form.Seç(yeniMakale(sıra++).Başlık);
        boya();
    };
    const auto sil = [&form] { // with the question
        evetDenecek();
        bas(form, QStringLiteral("SilButonu"));
    };
    makaleyleÖlç(ortam, QStringLiteral("Makale silme"), seç, sil, TıklamaAmacı);
    Sağla(eklenenSayısı() == silinenler, "a deleted article each time");
    makaleyleÖlç(ortam, QStringLiteral("Silme, yalnız kitaplıkta"), {},
                 [&sıra] { MakaleyiAç(yeniMakale(sıra++).Başlık).Delete(); });
    Sağla(eklenenSayısı() == 0, "the library as it was");
}

void RtfYüklemeyiÖlç(const PencereOrtamı& ortam)
{
    RtfÜreteci üreteç;
    üreteç.Üret(RtfBoyu);
    const QString yol = ProgramKlasörü + QStringLiteral("ölçüm.rtf");
    QFile dosya(yol);
    Sağla(dosya.open(QIODevice::WriteOnly) && dosya.write(üreteç.Rtf) == üreteç.Rtf.size(), "an RTF file");
    dosya.close();
    BiçimliMetin okunan;
    ortam.Çizelge.Satır({QStringLiteral("%L1 MB'lik RTF'yi okuma").arg(RtfBoyu / 1'000'000),
                         [&] { okunan = MetinDosyasıOku(yol); }, QStringLiteral("dosyanın baytlarını okuma"),
                         [&] {
                             QFile ham(yol);
                             Sağla(ham.open(QIODevice::ReadOnly) && ham.readAll().size() == üreteç.Rtf.size(),
                                   "the whole file");
                         },
                         RtfTekrarı, RtfAmacı, [&okunan] { okunan = {}; }});
    QFile::remove(yol);
    Sağla(okunan.Metin == üreteç.Metin && okunan.Parçalar.size() >= üreteç.Parçalar, "text and formats");

    ZenginMetinKutusu kutu;
    kutu.setUndoRedoEnabled(true); // as in the windows that load files
    kutu.resize(ortam.Pencere.size());
    kutu.show();
    const auto boşalt = [&kutu] {
        kutu.Text({});
        boya();
    };
    Ölçüm gösterme{QStringLiteral("Okunan RTF'yi gösterme"),
                   [&] {
                       kutu.Değiştir(okunan);
                       boya();
                   },
                   QStringLiteral("biçimsiz gösterme"),
                   [&] {
                       kutu.Text(okunan.Metin);
                       boya();
                   },
                   RtfTekrarı,
                   RtfAmacı};
    const auto kalın = std::find_if(okunan.Parçalar.cbegin(), okunan.Parçalar.cend(),
                                    [](const BiçimliParça& parça) { return parça.Biçim.Kalın; });
    Sağla(kalın != okunan.Parçalar.cend(), "a bold run");
    gösterme.İşHazırlığı = boşalt;
    gösterme.TabanHazırlığı = [&] {
        QTextCursor imleç(kutu.document());
        imleç.setPosition(kalın->Yer + 1);
        Sağla(imleç.charFormat().fontWeight() == QFont::Bold, "the formats in the box");
        boşalt();
    };
    ortam.Çizelge.Satır(gösterme);
}

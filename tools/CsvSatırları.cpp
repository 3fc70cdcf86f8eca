#include "tools/CsvSatırları.h"

#include "store/MakaleTablosu.h"
#include "store/Utf8Metni.h"
#include "text/TürkçeHarfler.h"
#include "tools/AraçHatası.h"

#include <QUtf8StringView>

#include <algorithm>
#include <csv.h>
#include <new>

namespace {

constexpr std::size_t TamponAdımı = 1 << 16; // bytes by which libcsv lets a field grow

struct SütunAdı
{
    QStringView ad; // as sütunAdı makes it
    QString Makale::*değer;
};

// As programs and people head such columns; beside these the library's own names.
constexpr std::array<SütunAdı, 15> SütunAdları = {{{u"yazar", &Makale::Yazar},
                                                   {u"yazar adi", &Makale::Yazar},
                                                   {u"yazarlar", &Makale::Yazar},
                                                   {u"author", &Makale::Yazar},
                                                   {u"baslik", &Makale::Başlık},
                                                   {u"makale basligi", &Makale::Başlık},
                                                   {u"title", &Makale::Başlık},
                                                   {u"yer", &Makale::Yer},
                                                   {u"yayim yeri", &Makale::Yer},
                                                   {u"place", &Makale::Yer},
                                                   {u"tarih", &Makale::Tarih},
                                                   {u"yayim tarihi", &Makale::Tarih},
                                                   {u"date", &Makale::Tarih},
                                                   {u"metin", &Makale::Metin},
                                                   {u"makale metni", &Makale::Metin}}};

/// Folded and without the marks of letters: "TITLE" may have been written by English rules, "baslik" without
/// Turkish letters.
QString sütunAdı(QStringView ad)
{
    QString sonuç;
    for (const QChar harf : Katla(ad.toString().simplified()).normalized(QString::NormalizationForm_KD)) {
        if (!harf.isMark())
            sonuç += harf == u'ı' ? QChar(u'i') : harf;
    }
    return sonuç;
}

/// Null for an unknown name.
QString Makale::*sütun(QStringView yazılan)
{
    const QString ad = sütunAdı(yazılan);
    for (const SütunTanımı& tanım : MakaleSütunları) {
        if (sütunAdı(tanım.ad) == ad)
            return tanım.değer;
    }
    const auto* yer =
        std::find_if(SütunAdları.begin(), SütunAdları.end(), [&ad](const SütunAdı& s) { return s.ad == ad; });
    return yer == SütunAdları.end() ? nullptr : yer->değer;
}

/// How often it stands outside quotes.
qsizetype tırnakDışındaki(const QByteArray& satır, char aranan)
{
    qsizetype sayı = 0;
    bool tırnakta = false;
    for (const char bayt : satır) {
        tırnakta = tırnakta != (bayt == '"');
        sayı += bayt == aranan && !tırnakta ? 1 : 0;
    }
    return sayı;
}

/// Nothing where both would do.
/// @param sütunlar how many columns the row has; 0 where that isn't known
std::optional<char> ayraç(const QByteArray& satır, std::size_t sütunlar)
{
    const qsizetype noktalı = tırnakDışındaki(satır, ';'), virgül = tırnakDışındaki(satır, ',');
    const auto uyar = [sütunlar](qsizetype sayı) { return sayı + 1 == qsizetype(sütunlar); };
    if (uyar(noktalı) && uyar(virgül))
        return {};
    if (uyar(noktalı) != uyar(virgül))
        return uyar(noktalı) ? ';' : ',';
    return noktalı > virgül ? ';' : ',';
}

} // namespace

/// libcsv's parser, which is fed line by line, and the row that it is at.
class CsvKaynağı::Çözücü
{
public:
    Çözücü()
    {
        if (csv_init(&çözücü_, CSV_STRICT | CSV_STRICT_FINI) != 0)
            throw std::bad_alloc();
        csv_set_blk_size(&çözücü_, TamponAdımı);
        csv_set_space_func(&çözücü_, [](unsigned char) { return 0; }); // blanks are a field's own
    }
    ~Çözücü() { csv_free(&çözücü_); }
    Çözücü(const Çözücü&) = delete;
    Çözücü& operator=(const Çözücü&) = delete;

    void Ayraç(char ayraç) { csv_set_delim(&çözücü_, static_cast<unsigned char>(ayraç)); }
    /// @return false where the bytes are against the rules
    bool Besle(const QByteArray& baytlar)
    {
        const auto boy = static_cast<std::size_t>(baytlar.size());
        return csv_parse(&çözücü_, baytlar.constData(), boy, alanBitti, kayıtBitti, this) == boy || bellek();
    }
    bool Bitir() { return csv_fini(&çözücü_, alanBitti, kayıtBitti, this) == 0 || bellek(); }

    bool KayıtVar() const { return kayıtVar_; }
    QStringList Kayıt()
    {
        kayıtVar_ = false;
        return std::move(alanlar_);
    }

private:
    static void alanBitti(void* alan, std::size_t boy, void* kendisi)
    {
        static_cast<Çözücü*>(kendisi)->alanlar_.append(Utf8Metni({static_cast<const char*>(alan), boy}));
    }
    static void kayıtBitti(int, void* kendisi) { static_cast<Çözücü*>(kendisi)->kayıtVar_ = true; }
    bool bellek() const
    {
        if (csv_error(&çözücü_) != CSV_EPARSE)
            throw std::bad_alloc();
        return false;
    }

    mutable csv_parser çözücü_;
    QStringList alanlar_;
    bool kayıtVar_ = false;
};

CsvKaynağı::CsvKaynağı(const QString& yol, const QString& sütunlar, const DurdurmaBekçisi& bekçi)
    : dosya_(yol, bekçi), çözücü_(std::make_unique<Çözücü>())
{
    if (!sütunlar.isEmpty())
        sütunlarıTanı(sütunlar.split(u','));
    else if (kayıtOku())
        sütunlarıTanı(çözücü_->Kayıt());
    else
        dosya_.HataVer(1, QStringLiteral("Dosya boş; sütun adları yok."));
}

CsvKaynağı::~CsvKaynağı() = default;

void CsvKaynağı::sütunlarıTanı(const QStringList& adlar)
{
    const auto var = [this](QString Makale::*değer) {
        return std::find(sütunlar_.begin(), sütunlar_.end(), değer) != sütunlar_.end();
    };
    for (const QString& ad : adlar) {
        QString Makale::*const değer = sütun(ad);
        if (değer && var(değer))
            dosya_.HataVer(1, QStringLiteral("“%1” ikinci kez yazılmış bir sütun.").arg(ad));
        sütunlar_.push_back(değer);
    }
    for (const MakaleSütunu gerekli :
         {MakaleSütunu::YazarAdi, MakaleSütunu::MakaleBasligi, MakaleSütunu::MakaleMetni}) {
        const SütunTanımı& tanım = Tanım(gerekli);
        if (!var(tanım.değer))
            dosya_.HataVer(
                1, QStringLiteral("%1 sütunu yok. Sütunların adlarını --sütunlar ile verin.").arg(tanım.ad));
    }
}

/// Reads on until a row is whole. @return false at the end
bool CsvKaynağı::kayıtOku()
{
    kayıtNo_ = dosya_.SatırNo() + 1;
    const auto denetle = [this](bool tamam, const QString& neden) {
        if (!tamam)
            dosya_.HataVer(kayıtNo_, neden);
    };
    QByteArray satır;
    while (dosya_.Oku(satır)) {
        if (dosya_.SatırNo() == 1) {
            const std::optional<char> bulunan = ayraç(satır, sütunlar_.size());
            denetle(bulunan.has_value(),
                    QStringLiteral("Alanları virgül mü noktalı virgül mü ayırıyor belli değil; "
                                   "ilk satıra sütunların adlarını yazın."));
            çözücü_->Ayraç(*bulunan);
        }
        denetle(QUtf8StringView(satır).isValidUtf8(), QStringLiteral("Satır geçerli bir UTF-8 metni değil."));
        denetle(çözücü_->Besle(satır), QStringLiteral("Tırnak (\") alanın ortasında ya da eksik."));
        if (çözücü_->KayıtVar())
            return true;
        if (satır.trimmed().isEmpty() && kayıtNo_ == dosya_.SatırNo()) // a blank line is no row
            ++kayıtNo_;
    }
    denetle(çözücü_->Bitir(), QStringLiteral("Açılan tırnak (\") kapanmıyor."));
    return çözücü_->KayıtVar();
}

std::optional<GelenMakale> CsvKaynağı::Sonraki()
{
    if (!kayıtOku())
        return {};
    const QStringList alanlar = çözücü_->Kayıt();
    GelenMakale gelen{{}, dosya_.Nerede(kayıtNo_)};
    if (alanlar.size() != qsizetype(sütunlar_.size()))
        throw AraçHatası(gelen.Nerede + QStringLiteral(": Satırda %1 alan var; %2 sütun olmalı.")
                                            .arg(alanlar.size())
                                            .arg(sütunlar_.size()));
    for (qsizetype i = 0; i < alanlar.size(); ++i) {
        if (QString Makale::*const değer = sütunlar_[std::size_t(i)])
            gelen.Değer.*değer = alanlar[i];
    }
    return gelen;
}

QByteArray CsvSatırı(const QStringList& alanlar)
{
    QByteArray satır;
    for (const QString& alan : alanlar) {
        satır += satır.isEmpty() ? "\"" : ",\"";
        satır += alan.toUtf8().replace('"', "\"\"");
        satır += '"';
    }
    return satır + "\r\n";
}

QByteArray CsvSatırı(const Makale& makale)
{
    QStringList alanlar;
    for (const SütunTanımı& sütun : MakaleSütunları)
        alanlar.append(makale.*sütun.değer);
    return CsvSatırı(alanlar);
}

QByteArray CsvBaşı(const QStringList& sütunlar)
{
    return "\xef\xbb\xbf" + CsvSatırı(sütunlar);
}

QByteArray CsvBaşı()
{
    QStringList adlar;
    for (const SütunTanımı& sütun : MakaleSütunları)
        adlar.append(sütun.ad.toString());
    return CsvBaşı(adlar);
}

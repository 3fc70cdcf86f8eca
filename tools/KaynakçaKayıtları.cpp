#include "tools/KaynakçaKayıtları.h"

#include "tools/KayıtDosyası.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

constexpr qsizetype EnUzunKayıt = 1'000'000'000; // bytes; no value of the library is that long
constexpr int AyAdıBoyu = 3;                     // of the months' abbreviations that BibTeX knows

bool boşluk(char harf)
{
    return harf == ' ' || harf == '\t' || harf == '\n' || harf == '\r';
}

bool harfMi(char harf)
{
    return (harf >= 'a' && harf <= 'z') || (harf >= 'A' && harf <= 'Z');
}

bool harfYaDaRakam(char harf)
{
    return harfMi(harf) || (harf >= '0' && harf <= '9');
}

/// Whether an entry begins in the line: inside another one a brace is missing before it.
bool girişBaşı(const QByteArray& satır)
{
    static const QRegularExpression kalıp(QStringLiteral(R"x(^\s*@[A-Za-z]+\s*[{(]\s*[^\s,{}()"=]+\s*,)x"));
    const auto baş = std::find_if_not(satır.begin(), satır.end(), boşluk);
    return baş != satır.end() && *baş == '@' && kalıp.match(QString::fromUtf8(satır.left(1000))).hasMatch();
}

QString alıntı(const QByteArray& sözcük)
{
    return QString::fromUtf8(sözcük.left(40));
}

// The codes of both editions of the format, and those that common programs add.
const QSet<QByteArray>& risKodları()
{
    static const QSet<QByteArray> kodlar = [] {
        const QByteArray hepsi = "A1 A2 A3 A4 A5 A6 AB AD AN AP AU AV BN BT C1 C2 C3 C4 C5 C6 C7 C8 CA CL CN "
                                 "CP CR CT CY DA DB DI DO "
                                 "DP DS ED EP ET FD FL H1 H2 ID IP IS J1 J2 JA JF JO K1 KW L1 L2 L3 L4 LA LB "
                                 "LI LK LL M1 M2 M3 N1 N2 "
                                 "NO NV OL OP OT PA PB PP PY RD RI RN RP RT SE SF SL SN SP SR ST SV T1 T2 T3 "
                                 "T4 TA TI TT U1 U2 U3 U4 "
                                 "U5 U6 U7 U8 U9 UR VL VO WP WT WV Y1 Y2 YR";
        const QByteArrayList liste = hepsi.split(' ');
        return QSet<QByteArray>(liste.begin(), liste.end());
    }();
    return kodlar;
}

/// The line's code; empty where it has none.
QByteArray risKodu(const QByteArray& satır)
{
    const bool kodlu = satır.size() > 4 && satır[0] >= 'A' && satır[0] <= 'Z' && harfYaDaRakam(satır[1]) &&
                       satır.sliced(2).startsWith("  -") && (satır.size() == 5 || boşluk(satır[5]));
    return kodlu ? satır.first(2) : QByteArray();
}

} // namespace

const KaynakçaAlanı* KaynakçaKaydı::Alan(QByteArrayView ad) const
{
    const auto alan =
        std::find_if(Alanlar.begin(), Alanlar.end(), [ad](const KaynakçaAlanı& a) { return a.Ad == ad; });
    return alan == Alanlar.end() ? nullptr : &*alan;
}

QByteArray KaynakçaKaydı::Değer(QByteArrayView ad) const
{
    const KaynakçaAlanı* alan = Alan(ad);
    return alan ? alan->Değer : QByteArray();
}

std::unique_ptr<KaynakçaKayıtları> KaynakçaKayıtları::Aç(KayıtDosyası& dosya, KaynakçaTürü tür)
{
    if (tür == KaynakçaTürü::Ris)
        return std::make_unique<RisKayıtları>(dosya);
    return std::make_unique<BibKayıtları>(dosya);
}

BibKayıtları::BibKayıtları(KayıtDosyası& dosya) : dosya_(dosya)
{
    for (int ay = 1; ay <= 12; ++ay) {
        const QByteArray ad = QLocale::c().monthName(ay).toLatin1();
        kısaltmalar_.insert(ad.first(AyAdıBoyu).toLower(), ad);
    }
}

void BibKayıtları::hata(const QString& cümle) const
{
    dosya_.HataVer(satırNo_, cümle);
}

bool BibKayıtları::satırEkle()
{
    QByteArray satır;
    if (!dosya_.Oku(satır))
        return false;
    if (kayıt_.Satır == 0) {
        tampon_ = satır;
        yer_ = 0;
        satırNo_ = dosya_.SatırNo();
        return true;
    }
    if (kayıt_.Tür != "comment" && girişBaşı(satır)) { // entries may be commented out
        dosya_.HataVer(kayıt_.Satır,
                       QStringLiteral("Bu satırda başlayan kayıt %1. satırda yeni bir kayıt başlarken "
                                      "daha kapanmamış; bir ayraç eksik.")
                           .arg(dosya_.SatırNo()));
    }
    if (tampon_.size() + satır.size() > EnUzunKayıt)
        dosya_.HataVer(kayıt_.Satır, QStringLiteral("Bu satırda başlayan kayıt çok uzun."));
    tampon_ += satır;
    return true;
}

/// The next sign; NUL at the file's end.
char BibKayıtları::bak()
{
    return yer_ < tampon_.size() || satırEkle() ? tampon_[yer_] : '\0';
}

char BibKayıtları::kayıttaBak()
{
    const char harf = bak();
    if (harf == '\0')
        dosya_.HataVer(kayıt_.Satır,
                       QStringLiteral("Bu satırda başlayan kayıt kapanmıyor; bir ayraç eksik."));
    return harf;
}

void BibKayıtları::ilerle()
{
    satırNo_ += tampon_[yer_++] == '\n';
}

void BibKayıtları::satırıGeç()
{
    while (bak() != '\n' && bak() != '\0')
        ilerle();
}

/// Passes over blanks, and over lines that a % takes out.
void BibKayıtları::boşlukGeç()
{
    while (boşluk(kayıttaBak()) || kayıttaBak() == '%') {
        if (kayıttaBak() == '%')
            satırıGeç();
        ilerle();
    }
}

/// Goes to behind the next @ that begins an entry. @return false at the end
bool BibKayıtları::girişBul()
{
    kayıt_ = {};
    bool satırBaşı = true;
    for (char önceki = '\n', harf = bak(); harf != '\0'; önceki = harf, harf = bak()) {
        if (harf == '%' && satırBaşı) {
            satırıGeç();
            continue;
        }
        satırBaşı = harf == '\n' || (satırBaşı && boşluk(harf));
        if (harf == '}' && --açık_ < 0)
            hata(QStringLiteral("Burada fazladan bir } var; önceki kayıt erken kapanmış olabilir."));
        açık_ += harf == '{';
        if (harf == '@' && !harfYaDaRakam(önceki)) { // else an address in a comment
            kayıt_.Satır = satırNo_;
            ilerle();
            return true;
        }
        ilerle();
    }
    return false;
}

QByteArray BibKayıtları::ayraçaKadar(QByteArrayView ayraçlar)
{
    const qsizetype baş = yer_;
    while (!ayraçlar.contains(kayıttaBak()))
        ilerle();
    return tampon_.sliced(baş, yer_ - baş).trimmed();
}

/// What stands between the brace here and its own.
QByteArray BibKayıtları::ayraçİçi()
{
    const qsizetype baş = yer_ + 1;
    int derinlik = 0;
    do {
        const char harf = kayıttaBak();
        derinlik += (harf == '{') - (harf == '}');
        ilerle();
    } while (derinlik > 0);
    return tampon_.sliced(baş, yer_ - 1 - baş);
}

QByteArray BibKayıtları::tırnakİçi()
{
    ilerle();
    const qsizetype baş = yer_;
    while (kayıttaBak() != '"') {
        if (kayıttaBak() == '}')
            hata(QStringLiteral("Tırnak kapanmadan bir } geliyor."));
        if (kayıttaBak() == '{')
            ayraçİçi();
        else
            ilerle();
    }
    ilerle();
    return tampon_.sliced(baş, yer_ - 1 - baş);
}

QByteArray BibKayıtları::parça()
{
    boşlukGeç();
    if (kayıttaBak() == '{')
        return ayraçİçi();
    if (kayıttaBak() == '"')
        return tırnakİçi();
    QByteArray sözcük = ayraçaKadar(" \t\r\n,#{}()\"=%");
    if (sözcük.isEmpty())
        hata(QStringLiteral("Burada bir değer gelmesi gerekirdi."));
    if (std::all_of(sözcük.begin(), sözcük.end(), [](char h) { return h >= '0' && h <= '9'; }))
        return sözcük;
    const auto kısaltma = kısaltmalar_.constFind(sözcük.toLower());
    if (kısaltma == kısaltmalar_.constEnd())
        hata(QStringLiteral("“%1” diye bir kısaltma tanımlanmamış (@string).").arg(alıntı(sözcük)));
    return *kısaltma;
}

QByteArray BibKayıtları::değer(const QByteArray& ad)
{
    if (kayıttaBak() != '=')
        hata(QStringLiteral("“%1” adından sonra = gelmiyor.").arg(alıntı(ad)));
    QByteArray sonuç;
    do {
        ilerle();
        sonuç += parça();
        boşlukGeç();
    } while (kayıttaBak() == '#');
    return sonuç;
}

/// The key, if there is one, and the fields up to what closes the entry.
void BibKayıtları::alanlarıOku(char son)
{
    for (bool ilk = true;; ilk = false) {
        boşlukGeç();
        const qint64 satır = satırNo_;
        const QByteArray ad =
            ayraçaKadar(ilk ? QByteArrayView("=,}\n") : QByteArrayView(" \t\r\n=,{}()\"#%"));
        boşlukGeç();
        if (ilk && kayıttaBak() != '=')
            kayıt_.Anahtar = ad;
        else if (!ad.isEmpty() || kayıttaBak() == '=')
            kayıt_.Alanlar.push_back({ad.toLower(), değer(ad), satır});
        if (kayıttaBak() == son)
            break;
        if (kayıttaBak() != ',')
            hata(QStringLiteral("Burada bir virgül ya da kaydı kapatan bir ayraç gelmesi gerekirdi."));
        ilerle();
    }
    ilerle();
}

std::optional<KaynakçaKaydı> BibKayıtları::Sonraki()
{
    while (girişBul()) {
        boşlukGeç();
        while (harfYaDaRakam(kayıttaBak())) {
            kayıt_.Tür += tampon_[yer_];
            ilerle();
        }
        kayıt_.Tür = kayıt_.Tür.toLower();
        if (kayıt_.Tür == "comment" && !tampon_.sliced(yer_).trimmed().startsWith('{')) {
            satırıGeç();
            continue;
        }
        boşlukGeç();
        const char aç = kayıttaBak();
        if (kayıt_.Tür.isEmpty())
            hata(QStringLiteral("Kaydın türü yok."));
        if (aç != '{' && aç != '(')
            hata(QStringLiteral("“@%1” sözünden sonra { gelmiyor.").arg(alıntı(kayıt_.Tür)));
        if (kayıt_.Tür == "comment" || kayıt_.Tür == "preamble") {
            aç == '{' ? ayraçİçi() : ayraçaKadar(")\n");
            continue;
        }
        ilerle();
        alanlarıOku(aç == '{' ? '}' : ')');
        if (kayıt_.Tür != "string")
            return std::move(kayıt_);
        for (const KaynakçaAlanı& alan : kayıt_.Alanlar)
            kısaltmalar_.insert(alan.Ad, alan.Değer);
    }
    return {};
}

std::optional<KaynakçaKaydı> RisKayıtları::Sonraki()
{
    KaynakçaKaydı kayıt;
    QByteArray satır;
    while (dosya_.Oku(satır)) {
        if (satır.endsWith('\n'))
            satır.chop(1);
        const QByteArray kod = risKodu(satır);
        if (kod == "ER" && kayıt.Satır > 0)
            return kayıt;
        if (!kod.isEmpty())
            koduAl(kayıt, kod, satır.mid(6));
        else if (kayıt.Satır > 0 && !kayıt.Alanlar.empty())
            kayıt.Alanlar.back().Değer += '\n' + satır;
        else if (kayıt.Satır > 0 && !satır.trimmed().isEmpty())
            dosya_.HataVer(dosya_.SatırNo(), QStringLiteral("Burada bir RIS kodu gelmesi gerekirdi."));
    }
    if (kayıt.Satır > 0)
        dosya_.HataVer(kayıt.Satır, QStringLiteral("Bu satırda başlayan kayıt ER ile bitmiyor."));
    return {};
}

void RisKayıtları::koduAl(KaynakçaKaydı& kayıt, const QByteArray& kod, const QByteArray& değer) const
{
    const qint64 satır = dosya_.SatırNo();
    if (kod == "TY") {
        if (kayıt.Satır > 0)
            dosya_.HataVer(kayıt.Satır, QStringLiteral("Bu satırda başlayan kayıt ER ile bitmiyor."));
        if (değer.trimmed().isEmpty())
            dosya_.HataVer(satır, QStringLiteral("Kaydın türü yok."));
        kayıt.Satır = satır;
        kayıt.Tür = değer.trimmed().toLower();
    } else if (kayıt.Satır == 0) {
        dosya_.HataVer(satır, QStringLiteral("Bu satırdan önce TY ile başlayan bir kayıt yok."));
    } else if (!risKodları().contains(kod)) {
        dosya_.HataVer(satır, QStringLiteral("“%1” diye bir RIS kodu yok.").arg(alıntı(kod)));
    } else {
        kayıt.Alanlar.push_back({kod, değer, satır});
    }
    if (kod == "ID")
        kayıt.Anahtar = değer.trimmed();
}

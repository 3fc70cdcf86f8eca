#include "tools/KaynakçaBağları.h"

#include "document/MetinDosyası.h"
#include "text/TürkçeHarfler.h"
#include "tools/KaynakçaKayıtları.h"
#include "tools/KayıtDosyası.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace {

/// Divided where the sign stands without a backslash.
QStringList böl(const QString& metin, QChar ayraç)
{
    QStringList parçalar{QString()};
    for (qsizetype i = 0; i < metin.size(); ++i) {
        if (metin[i] == ayraç)
            parçalar += QString();
        else if (metin[i] == u'\\' && i + 1 < metin.size())
            parçalar.back() += metin.sliced(i++, 2);
        else
            parçalar.back() += metin[i];
    }
    return parçalar;
}

QString kaçışsız(const QString& metin)
{
    QString sonuç;
    for (qsizetype i = 0; i < metin.size(); ++i) {
        if (metin[i] == u'\\' && i + 1 < metin.size())
            ++i;
        sonuç += metin[i];
    }
    return sonuç;
}

bool yerelBağ(const QString& bağ)
{
    return bağ.startsWith(QStringLiteral("file:"));
}

QString yolu(const QString& bağ)
{
    return yerelBağ(bağ) ? QUrl(bağ).path(QUrl::FullyDecoded) : bağ;
}

bool başkaMakinede(const QString& bağ)
{
    return bağ.contains(QStringLiteral("://")) && !yerelBağ(bağ);
}

/// Of "description:path:type" the path; a plain path is one.
QString bibYolu(const QString& öğe)
{
    if (yerelBağ(öğe) || başkaMakinede(öğe))
        return öğe;
    const QStringList parçalar = böl(öğe, u':');
    const qsizetype yer = parçalar.size() > 1 ? std::max<qsizetype>(1, parçalar.size() - 2) : 0;
    return kaçışsız(parçalar[yer]);
}

bool metinDosyası(const QString& yol)
{
    const QString uzantı = Katla(QFileInfo(yol).suffix());
    return uzantı == u"txt" || uzantı == u"text" || uzantı == u"rtf";
}

/// Whether a field that mostly holds an address of the web, also one without its scheme, names a file.
bool dosyaAdresi(const QString& bağ)
{
    return yerelBağ(bağ) || (metinDosyası(bağ) && !bağ.startsWith(QStringLiteral("www.")));
}

QString tamYol(const QString& yol, const QString& klasör)
{
    const QString tam = QDir(klasör).absoluteFilePath(yol);
    const QString köklü = u'/' + yol; // some programs leave the first stroke out
    return !QFileInfo::exists(tam) && QFileInfo::exists(köklü) ? köklü : tam;
}

} // namespace

QStringList BağlıDosyalar(const KaynakçaKaydı& kayıt, KaynakçaTürü tür)
{
    QStringList yollar;
    for (const KaynakçaAlanı& alan : kayıt.Alanlar) {
        const QString değer = QString::fromUtf8(alan.Değer).trimmed();
        if (tür == KaynakçaTürü::BibTeX && alan.Ad == "file") {
            for (const QString& öğe : böl(değer, u';'))
                yollar += bibYolu(öğe.trimmed());
        } else if (alan.Ad == "L1" || alan.Ad == "L2") {
            yollar += değer.split(u'\n');
        } else if ((alan.Ad == "url" || alan.Ad == "UR" || alan.Ad == "LK") && dosyaAdresi(değer)) {
            yollar += değer;
        }
    }
    QStringList sonuç;
    for (const QString& bağ : yollar) {
        if (const QString yer = bağ.trimmed(); !yer.isEmpty() && !başkaMakinede(yer))
            sonuç += yolu(yer);
    }
    return sonuç;
}

BağlıMetin BağlıMetniOku(const QStringList& yollar, const QString& klasör)
{
    const auto metin = std::find_if(yollar.begin(), yollar.end(), metinDosyası);
    if (metin == yollar.end()) {
        return yollar.isEmpty()
                   ? BağlıMetin{}
                   : BağlıMetin{.Ret = QStringLiteral("Bağlı dosya (%1) bir metin ya da RTF dosyası değil.")
                                           .arg(yollar.first())};
    }
    try {
        return {.Var = true, .Metin = MetinDosyasıOku(tamYol(*metin, klasör)).Metin};
    } catch (const MetinOkumaHatası& hata) {
        return {.Var = true, .Ret = hata.Açıklama()};
    }
}

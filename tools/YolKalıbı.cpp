#include "tools/YolKalıbı.h"

#include "tools/AraçHatası.h"

#include <algorithm>
#include <array>

namespace {

struct KalıpAlanı
{
    QStringView ad;
    QString Makale::*değer;
};

constexpr std::array<KalıpAlanı, 5> KalıpAlanları = {{{u"yazar", &Makale::Yazar},
                                                      {u"başlık", &Makale::Başlık},
                                                      {u"baslik", &Makale::Başlık},
                                                      {u"yer", &Makale::Yer},
                                                      {u"tarih", &Makale::Tarih}}};

/// The last names of the path, without the ending.
QString yolSonu(const QString& yol, int derinlik)
{
    const qsizetype ad = yol.lastIndexOf(u'/') + 1;
    const qsizetype uzantı = yol.lastIndexOf(u'.');
    const QString uzantısız = uzantı > ad ? yol.left(uzantı) : yol;
    return uzantısız.section(u'/', -derinlik - 1);
}

} // namespace

YolKalıbı::YolKalıbı(const QString& kalıp) : derinlik_(static_cast<int>(kalıp.count(u'/')))
{
    QString ifade;
    const QString bitişik = kalıp.normalized(QString::NormalizationForm_C);
    for (qsizetype yer = 0; yer < bitişik.size();) {
        const qsizetype baş = bitişik.indexOf(u'{', yer), son = bitişik.indexOf(u'}', baş);
        if (baş < 0 || son < 0) {
            ifade += QRegularExpression::escape(bitişik.mid(yer));
            break;
        }
        ifade += QRegularExpression::escape(bitişik.mid(yer, baş - yer));
        const QString ad = bitişik.mid(baş + 1, son - baş - 1);
        const auto* alan = std::find_if(KalıpAlanları.begin(), KalıpAlanları.end(),
                                        [&ad](const KalıpAlanı& a) { return a.ad == ad; });
        if (alan == KalıpAlanları.end() || std::count(alanlar_.begin(), alanlar_.end(), alan->değer) > 0) {
            throw YanlışKullanım(QStringLiteral("Kalıpta “{%1}” olamaz; {yazar}, {başlık}, {yer} ve {tarih} "
                                                "birer kez kullanılabilir.")
                                     .arg(ad));
        }
        alanlar_.push_back(alan->değer);
        ifade += QStringLiteral("([^/]+?)");
        yer = son + 1;
    }
    if (alanlar_.empty())
        throw YanlışKullanım(
            QStringLiteral("Kalıpta {yazar}, {başlık}, {yer} ya da {tarih} olmalı: %1.").arg(kalıp));
    ifade_.setPattern(QRegularExpression::anchoredPattern(ifade));
}

Makale YolKalıbı::Uygula(const QString& yol) const
{
    Makale makale;
    const auto uyan = ifade_.match(yolSonu(yol, derinlik_).normalized(QString::NormalizationForm_C));
    for (std::size_t i = 0; uyan.hasMatch() && i < alanlar_.size(); ++i)
        makale.*alanlar_[i] = uyan.captured(int(i) + 1).trimmed();
    return makale;
}

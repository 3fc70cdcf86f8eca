#include "Ölçüm.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

// In characters; negative stands for a column whose entries end at its right edge.
constexpr std::array<int, 7> Genişlikler = {14, 31, -9, -6, -6, 18, 0};
constexpr int ÇizgiBoyu = 138;

double süre(const std::function<void()>& hazırlık, const std::function<void()>& iş)
{
    if (hazırlık)
        hazırlık();
    const auto baş = std::chrono::steady_clock::now();
    iş();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - baş).count();
}

double ortanca(std::vector<double> süreler)
{
    const auto orta = süreler.begin() + static_cast<std::ptrdiff_t>(süreler.size() / 2);
    std::nth_element(süreler.begin(), orta, süreler.end());
    return *orta;
}

QString sayı(double değer)
{
    return QLocale().toString(değer, 'f', değer < 10 ? 2 : 1);
}

QString hedefMetni(const std::optional<Amaç>& hedef)
{
    if (!hedef)
        return {};
    const QString sınır = QLocale().toString(hedef->üstSınır);
    switch (hedef->tür) {
    case Amaç::Tür::Oran:
        return QStringLiteral("oran < ") + sınır;
    case Amaç::Tür::Süre:
        return QStringLiteral("süre < ") + sınır;
    case Amaç::Tür::Büyüme:
        return QStringLiteral("büyüme < ") + sınır;
    }
    return {};
}

void sütunlarıYaz(const std::array<QString, 7>& değerler)
{
    QString satır;
    for (std::size_t i = 0; i < değerler.size(); ++i) {
        const int genişlik = Genişlikler[i];
        satır += genişlik < 0 ? değerler[i].rightJustified(-genişlik) : değerler[i].leftJustified(genişlik);
        satır += QStringLiteral("  ");
    }
    SatırYaz(satır);
}

} // namespace

Sonuç Ölç(const Ölçüm& ölçüm)
{
    std::vector<double> işler, tabanlar;
    for (int i = 0; i <= ölçüm.Tekrar; ++i) {
        const double iş = süre(ölçüm.İşHazırlığı, ölçüm.İş);
        const double taban = süre(ölçüm.TabanHazırlığı, ölçüm.Taban);
        if (i == 0)
            continue;
        işler.push_back(iş);
        tabanlar.push_back(taban);
    }
    return {ortanca(işler), ortanca(tabanlar)};
}

void Tablo::BaşlığıYaz() const
{
    sütunlarıYaz({QStringLiteral("Kitaplık"), QStringLiteral("Ölçülen"), QStringLiteral("Süre (ms)"),
                  QStringLiteral("Oran"), QStringLiteral("Büyüme"), QStringLiteral("Amaç"),
                  QStringLiteral("Oranın tabanı (ms)")});
    SatırYaz(QString(ÇizgiBoyu, u'-'));
}

void Tablo::Satır(const Ölçüm& ölçüm)
{
    Satır(ölçüm.Ad, Ölç(ölçüm), ölçüm.TabanAdı, ölçüm.Hedef);
}

void Tablo::Satır(const QString& ad, const Sonuç& sonuç, const QString& tabanAdı,
                  const std::optional<Amaç>& hedef)
{
    const double oran = sonuç.İş / sonuç.Taban;
    std::optional<double> büyüme;
    if (const auto ilk = ilkler_.constFind(ad); ilk != ilkler_.constEnd())
        büyüme = sonuç.İş / *ilk;
    else
        ilkler_.insert(ad, sonuç.İş);

    QString hedefi = hedefMetni(hedef);
    if (hedef) {
        const Amaç::Tür tür = hedef->tür;
        const double değer = tür == Amaç::Tür::Süre   ? sonuç.İş
                             : tür == Amaç::Tür::Oran ? oran
                                                      : büyüme.value_or(1);
        const bool tuttu = değer < hedef->üstSınır;
        ++(tuttu ? tutan_ : tutmayan_);
        hedefi += tuttu ? QStringLiteral(" tuttu") : QStringLiteral(" AŞILDI");
    }
    sütunlarıYaz({kitaplık_, ad, sayı(sonuç.İş), sayı(oran), büyüme ? sayı(*büyüme) : QStringLiteral("-"),
                  hedefi, tabanAdı + QStringLiteral(" (%1)").arg(sayı(sonuç.Taban))});
}

void Tablo::SonucuYaz() const
{
    SatırYaz(
        QStringLiteral("\nSüreler ortancadır; oran, aynı çalışmada sırayla ölçülen tabana göredir; büyüme, "
                       "aynı ölçümün ilk kitaplıktaki süresine göredir."));
    SatırYaz(QStringLiteral("%1 amaç tuttu, %2 amaç aşıldı.").arg(tutan_).arg(tutmayan_));
}

void SatırYaz(const QString& satır)
{
    qsizetype son = satır.size();
    while (son > 0 && satır[son - 1] == u' ')
        --son;
    std::puts(satır.left(son).toUtf8().constData());
    std::fflush(stdout);
}

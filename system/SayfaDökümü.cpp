#include "system/SayfaDökümü.h"

#include "system/ÇalışmaHatası.h"

#include <QPagedPaintDevice>
#include <QTextLayout>

namespace {

constexpr double SekmeAralığı =
    48; // pixels of a screen of 96 dots an inch, which the layout scales: half an inch
constexpr qsizetype ParçaBoyu = 4096; // UTF-16 units laid out at a time

} // namespace

SayfaDökümü::SayfaDökümü(QPagedPaintDevice& aygıt, const QFont& yazıTipi, std::function<void()> satırdan)
    : aygıt_(aygıt), satırdan_(std::move(satırdan)), yazıTipi_(yazıTipi, &aygıt)
{
    biçim_.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    biçim_.setTabStopDistance(SekmeAralığı);
    if (!ressam_.begin(&aygıt))
        throw ÇalışmaHatası(ÇalışmaHataNo::Yazıcı, QStringLiteral("Yazdırma başlatılamadı."));
    alan_ = ressam_.viewport();
}

void SayfaDökümü::YazıTipi(const QFont& yazıTipi)
{
    yazıTipi_ = QFont(yazıTipi, &aygıt_);
}

void SayfaDökümü::Metin(QStringView metin)
{
    qsizetype baş = 0;
    for (qsizetype i = 0; i <= metin.size(); ++i) {
        const bool son = i == metin.size();
        const QChar harf = son ? QChar(u'\n') : metin[i];
        const bool satırSonu = (harf >= u'\n' && harf <= u'\r') || harf == QChar::ParagraphSeparator;
        if (!satırSonu)
            continue;
        if (!son || i > baş)
            paragraf(metin.sliced(baş, i - baş));
        if (harf == u'\r' && i + 1 < metin.size() && metin[i + 1] == u'\n')
            ++i;
        baş = i + 1;
    }
}

/// Laid out in pieces, so that one of any length needs little memory. A piece's last line is not whole unless
/// it ends the paragraph: the next piece begins with it.
void SayfaDökümü::paragraf(QStringView paragraf)
{
    do {
        const QStringView parça = paragraf.left(ParçaBoyu);
        paragraf = paragraf.mid(parçayıDök(parça, parça.size() == paragraf.size(), alan_.width()));
    } while (!paragraf.isEmpty());
}

void SayfaDökümü::Satır(const QString& sol, const QString& sağ)
{
    const double boşluk = QFontMetricsF(yazıTipi_, &aygıt_).horizontalAdvance(sağ + QStringLiteral("   "));
    parçayıDök(sol, true, alan_.width() - boşluk);
    QTextLayout düzen(sağ, yazıTipi_, &aygıt_);
    düzen.beginLayout();
    QTextLine satır = düzen.createLine();
    düzen.endLayout();
    const double boy = satır.height() + satır.leading();
    satır.draw(&ressam_, QPointF(alan_.width() - satır.naturalTextWidth(), y_ - boy));
}

/// @return how much of the piece was put out
qsizetype SayfaDökümü::parçayıDök(QStringView parça, bool paragrafSonu, double genişlik)
{
    QTextLayout düzen(parça.toString(), yazıTipi_, &aygıt_);
    düzen.setTextOption(biçim_);
    düzen.beginLayout();
    for (QTextLine satır = düzen.createLine(); satır.isValid(); satır = düzen.createLine())
        satır.setLineWidth(genişlik);
    düzen.endLayout();
    const int satırlar = düzen.lineCount() - (paragrafSonu || düzen.lineCount() < 2 ? 0 : 1);
    for (int i = 0; i < satırlar; ++i)
        satırıDök(düzen.lineAt(i));
    return satırlar < düzen.lineCount() ? düzen.lineAt(satırlar).textStart() : parça.size();
}

void SayfaDökümü::satırıDök(const QTextLine& satır)
{
    const double boy = satır.height() + satır.leading();
    if (y_ > 0 && y_ + satır.height() > alan_.height())
        YeniSayfa();
    satır.draw(&ressam_, QPointF(0, y_));
    y_ += boy;
    satırdan_();
}

void SayfaDökümü::NumaralarıYaz()
{
    numaraYazısı_ = yazıTipi_;
    // A line for the number, and an empty one above it.
    alan_.setHeight(alan_.height() - 2 * QFontMetricsF(yazıTipi_, &aygıt_).height());
}

void SayfaDökümü::numarayıYaz()
{
    if (!numaraYazısı_)
        return;
    ressam_.setFont(*numaraYazısı_);
    ressam_.drawText(ressam_.viewport(), Qt::AlignHCenter | Qt::AlignBottom, QString::number(sayfa_));
}

void SayfaDökümü::Bitir()
{
    numarayıYaz();
    ressam_.end();
}

void SayfaDökümü::YeniSayfa()
{
    numarayıYaz();
    if (!aygıt_.newPage())
        throw ÇalışmaHatası(ÇalışmaHataNo::Yazıcı, QStringLiteral("Yeni sayfaya geçilemedi."));
    y_ = 0;
    ++sayfa_;
}

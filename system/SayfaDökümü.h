// Puts text on pages, line below line: of a printer, or of a document.
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <QTextOption>

#include <functional>
#include <optional>

class QPagedPaintDevice;
class QTextLine;

/// Lives for one document. Begins it when made; Bitir ends it.
class SayfaDökümü
{
public:
    /// Throws Hata where the device can't begin, or can't take a new page later.
    /// @param satırdan called after each line
    SayfaDökümü(QPagedPaintDevice& aygıt, const QFont& yazıTipi, std::function<void()> satırdan);

    /// Of what follows.
    void YazıTipi(const QFont& yazıTipi);
    /// Breaks lines where the text says and where they would be too long. A break at the very end begins no
    /// further line.
    void Metin(QStringView metin);
    /// A line with a word of its own at the right edge, on the last line where the text needs several.
    void Satır(const QString& sol, const QString& sağ);
    void YeniSayfa();
    int Sayfa() const { return sayfa_; } ///< counts from 1
    /// From this page on each has its number at its foot.
    void NumaralarıYaz();
    void Bitir();

private:
    void paragraf(QStringView paragraf);
    qsizetype parçayıDök(QStringView parça, bool paragrafSonu, double genişlik);
    void satırıDök(const QTextLine& satır);
    void numarayıYaz();

    QPagedPaintDevice& aygıt_;
    std::function<void()> satırdan_;
    QPainter ressam_;
    QFont yazıTipi_;
    QTextOption biçim_;
    QRectF alan_;
    double y_ = 0; // where the next line begins, in the device's pixels
    int sayfa_ = 1;
    std::optional<QFont> numaraYazısı_; // none where pages have no numbers
};

// The label that looks like a web link.
#pragma once

#include "app/Görünüm.h"

#include <QLabel>
#include <QSet>
#include <QVariantMap>
#include <QWidget>

#include <functional>

inline constexpr QStringView ÜreticiSitesi = u"https://www.tepsan.example"; ///< the maker's web site

/// One line of text that opens an address, when clicked or by Enter or blank. As wide and high as its label
/// and 30 twips around it. Knows nothing of hovering: the window that holds it shows its active and passive
/// look, told by MouseMove.
class WebEtiketi : public QWidget
{
public:
    static constexpr QStringView Kimlik = u"Belgenar.WebEtiketi"; ///< names the type in a stored state
    static constexpr int KenarBoşluğu = 30;                       ///< twips around the label

    explicit WebEtiketi(QWidget* üst = nullptr);

    /// The pointer moved over the label. Buttons: 1 left, 2 right, 4 middle; modifiers: 1 Shift, 2 Ctrl,
    /// 4 Alt, added up; the place is in twips from the label's corner.
    std::function<void(qint16 düğme, qint16 üstTuş, float x, float y)> MouseMove;

    QString Caption() const { return Etiket.text(); }
    void Caption(const QString& yazı);
    bool FontUnderline() const { return Etiket.font().underline(); }
    void FontUnderline(bool altÇizgili);
    Renk ForeColor() const { return yazıRengi_; }
    void ForeColor(Renk renk);
    /// What a font leaves open when it is set stays the window's.
    QFont Font() const { return Etiket.font(); }
    void Font(const QFont& yazıTipi);
    Renk PasifRenk() const { return pasifRenk_; }
    void PasifRenk(Renk renk);
    /// Reading it shows the active colour, too.
    Renk AktifRenk();
    void AktifRenk(Renk renk);
    QString Url() const { return url_; }
    void Url(const QString& adres);
    /// Whether hovering changes the colour; else it underlines.
    bool RenkDeğiştir() const { return renkDeğiştir_; }
    void RenkDeğiştir(bool değiştir);

    /// The properties that were set since the state was last read or written, by their keys.
    const QSet<QString>& Değişenler() const { return değişenler_; }
    /// The properties that differ from their defaults, by their keys, as a map under Kimlik. Colours are
    /// numbers; the font's default is the holding window's.
    QVariantMap DurumuYaz();
    /// Takes a state over; what it lacks, or holds as another type, becomes the default.
    /// @return false when it is another control's; nothing changes then
    bool DurumuOku(const QVariantMap& durum);

    /// Opens the address; nothing happens where it is neither a web nor a mail address.
    void Aç() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;
    void changeEvent(QEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;
    void paintEvent(QPaintEvent* olay) override;
    void resizeEvent(QResizeEvent* olay) override;

private:
    void yazıyıKoy(const QString& yazı);
    void altÇiz(bool altÇizgili);
    void yazıTipiniKoy(const QFont& yazıTipi);
    void renklendir(Renk renk);
    void boyuTazele();

    QLabel Etiket;
    Renk yazıRengi_ = DüğmeYazısıRengi; // the label's; its palette holds what is seen of it
    Renk aktifRenk_, pasifRenk_;
    bool renkDeğiştir_;
    QString url_;
    QSet<QString> değişenler_;
    bool basıldı_ = false;
};

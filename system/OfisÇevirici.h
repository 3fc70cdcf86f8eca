// Documents through the word processor.
#pragma once

#include "system/BelgeÇevirici.h"
#include "system/ÇevirmeKlasörü.h"

/// LibreOffice without a window, in a private profile, on files in the private folder. One process converts
/// many documents; where it dies or hangs, the one at hand is refused, and another process goes on behind it.
class OfisÇevirici
{
public:
    using Alıcı = std::function<void(qsizetype kaçıncı, const ÇevrilenBelge& belge)>;

    /// @param klasör must outlive this
    /// @param bak asked while it waits; throws where the work is to stop
    OfisÇevirici(const ÇevirmeKlasörü& klasör, ÇevirmeSüreleri süreler, std::function<void()> bak);
    ~OfisÇevirici();
    OfisÇevirici(const OfisÇevirici&) = delete;
    OfisÇevirici& operator=(const OfisÇevirici&) = delete;

    /// A sentence for the user where the word processor isn't there or doesn't start; else empty.
    QString Eksik() const { return eksik_; }
    /// Where to put a document, under a name without a blank or a sign; the ending tells its kind.
    QString GirdiYolu(const QString& ad) const { return girdi_ + u'/' + ad; }
    /// @param adlar of the documents; they are removed as they are converted
    /// @param alıcı given all of them, in their order
    void Çevir(const QStringList& adlar, const Alıcı& alıcı);

private:
    class Tur;
    enum class TurSonu;

    QStringList argümanlar(const QStringList& adlar) const;
    TurSonu çalıştır(Tur& tur, const QStringList& adlar, const std::function<void()>& ilerledi) const;
    QString suç(TurSonu son) const;
    void profilKur();
    void boruyuSil() const;

    const ÇevirmeKlasörü& klasör_;
    ÇevirmeSüreleri süreler_;
    std::function<void()> bak_;
    QString program_;
    QString girdi_, çıktı_, geçici_, profil_;
    QString eksik_;
    int profilNo_ = 0;
};

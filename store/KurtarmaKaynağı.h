// A library file, whatever is damaged in it, as something that can be opened.
#pragma once

#include "store/Bağlantı.h"
#include "store/KitaplıkYapısı.h"
#include "store/SayfaŞifresi.h"

#include <QFile>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Opens the file where it lies if it is whole in size and its first page is sound; else a copy: with what a
/// crash left rolled back, zeros for what the disk doesn't give, a first page that agrees with the size, and
/// a new one where that is lost. The file itself stays as it is. Owned by the rescue, whose copies it leaves
/// behind.
class KurtarmaKaynağı
{
public:
    /// Called during long work; false stops it with İşlemDurduruldu.
    using Sürdürme = std::function<bool()>;

    /// @param yol with its links resolved
    /// @param kopya where a copy may lie; files beside it whose names are longer are used, too
    /// @param tuzlar what may be the file's salt; its own first bytes are tried before
    /// Throws DosyaYok, DosyaBoş, DosyaYarım, DosyaBozuk or KitaplıkDeğil where nothing can be read at all,
    /// SürümYeni, and DiskDolu and the like where no copy can be made.
    static std::unique_ptr<KurtarmaKaynağı> Aç(const QString& yol, const QString& kopya,
                                               const std::vector<QByteArray>& tuzlar,
                                               const Sürdürme& sürsünMü);

    Bağlantı& Dosya() const { return *bağlantı_; }
    const Anahtar& Anahtarı() const { return şifre_->Anahtarı(); }
    YapıDurumu Durum() const { return durum_; }
    /// Whether the indices' places come from the file, not from a new first page. The table's never change.
    bool YerlerBilinir() const { return yerlerBilinir_; }
    /// Whether a write that had been left unfinished was taken back.
    bool GeriAlındı() const { return geriAlındı_; }

    qint64 SayfaSayısı() const { return sayfalar_; }
    /// The page's first byte deciphered, which tells its kind; anything where it can't be read.
    /// @param sayfa from 2
    quint8 SayfaTürü(qint64 sayfa);

private:
    /// Whose the file is that is to be opened: only a copy of ours may be mended where it lies.
    enum class Kimin
    {
        Başkasının,
        Bizim
    };
    struct Bulgu;

    KurtarmaKaynağı(const QString& yol, const QString& kopya, Kimin kimin,
                    const std::vector<QByteArray>& tuzlar, const Sürdürme& sürsünMü);
    static Bulgu şifreyiBul(QFile& dosya, const std::vector<QByteArray>& tuzlar);
    void denetle(bool eksik, bool fazla, const Sürdürme& sürsünMü);
    bool geriAlınandanİyi(KurtarmaKaynağı& geri);
    qint64 okunanSayfalar();

    // A second descriptor, once closed, drops the locks of the first: this one is closed after the
    // connection.
    QFile dosya_;
    std::optional<SayfaŞifresi> şifre_;
    std::unique_ptr<Bağlantı> bağlantı_;
    qint64 sayfalar_ = 0;
    YapıDurumu durum_ = YapıDurumu::Sağlam;
    bool yerlerBilinir_ = true, geriAlındı_ = false;
};

/// Whether an error says that nothing can be had from a file, not that something is in the way.
bool OkunacakBirŞeyYok(HataNo hata);

/// What may be the salt of the file with that journal: the first bytes of what it holds of the first page.
std::vector<QByteArray> GünlüktekiTuzlar(const QString& günlük);

// The per-user settings store, and the table of all settings.
#pragma once

#include <QString>

/// A setting's key. Değer is double where the value is a number, QStringView where it is a text; the store
/// keeps texts only.
template<class Değer> struct AyarAnahtarı
{
    QStringView Ad;
};
using SayıAnahtarı = AyarAnahtarı<double>;
using MetinAnahtarı = AyarAnahtarı<QStringView>;

/// A key with the value that holds where the setting is absent.
template<class Değer> struct Ayar : AyarAnahtarı<Değer>
{
    Değer Varsayılan;
};

/// All settings. Those without a default here have one that the window knows which reads them.
struct Ayarlar
{
    static constexpr Ayar<double> TamEkran{{u"Tam Ekran"}, 2};         ///< a PencereDurumu
    static constexpr SayıAnahtarı Sol{u"Sol"};                         ///< twips; absent: centred
    static constexpr SayıAnahtarı Üst{u"Ust"};                         ///< twips; absent: centred
    static constexpr MetinAnahtarı YazıTipi{u"Yazi Tipi"};             ///< absent: the main window's font
    static constexpr Ayar<double> YazıBoyutu{{u"Yazi Boyutu"}, 2};     ///< index for YazıBoyutu
    static constexpr Ayar<double> ZeminRengi{{u"Zemin Rengi"}, 0};     ///< index for ZeminRengi
    static constexpr Ayar<double> SonYazar{{u"Son Yazar"}, 0};         ///< index in the author list
    static constexpr Ayar<QStringView> SonAçılan{{u"Son Acilan"}, {}}; ///< path of the file read last
};

/// The section that holds every setting.
inline constexpr QStringView AyarBölümü = u"Ayarlar";

/// The store itself: a stored text, or the default where there is none or the store can't be read.
QString AyarMetniOku(const QString& uygulama, QStringView bölüm, QStringView anahtar,
                     const QString& varsayılan);
/// Puts a text into the store's file at once, by replacing the file as a whole: a process that ends at any
/// moment leaves the old file or the new one. A store that can't be written is passed over, since no setting
/// is worth an error.
void AyarMetniYaz(const QString& uygulama, QStringView bölüm, QStringView anahtar, const QString& değer);

/// The same two for this program's own settings. A text that is no finite number reads as the number 0.
double AyarOku(const Ayar<double>& ayar);
double AyarOku(SayıAnahtarı ayar, double varsayılan);
QString AyarOku(const Ayar<QStringView>& ayar);
QString AyarOku(MetinAnahtarı ayar, const QString& varsayılan);
void AyarYaz(SayıAnahtarı ayar, qint64 sayı);
void AyarYaz(MetinAnahtarı ayar, const QString& metin);

/// A number as a 16-bit list index: fractions are rounded, what does not fit becomes -1 (no entry).
qint16 SıraSayısı(double sayı);

// Text with character formats, as read from a file.
#pragma once

#include "base/Hata.h"

#include <QList>
#include <QString>

/// How letters look. A default value means that the file does not say: the box shows its own.
struct KarakterBiçimi
{
    /// A colour's value when there is none.
    static constexpr quint32 Renksiz = 0xFFFFFFFF;

    bool Kalın = false;
    bool İtalik = false;
    bool AltıÇizili = false;
    bool ÜstüÇizili = false;
    int YarımNokta = 0;     ///< size in half-points, 1 to 3276; 0 when not given
    quint32 Renk = Renksiz; ///< 0x00BBGGRR
    QString YazıTipi;       ///< font family; empty when not given

    bool operator==(const KarakterBiçimi&) const = default;
};

/// A stretch of text in one format.
struct BiçimliParça
{
    int Yer = 0;     ///< UTF-16 units from the text's beginning
    int Uzunluk = 0; ///< in UTF-16 units, never 0
    KarakterBiçimi Biçim;

    bool operator==(const BiçimliParça&) const = default;
};
Q_DECLARE_TYPEINFO(BiçimliParça, Q_RELOCATABLE_TYPE);

struct BiçimliMetin
{
    /// Line breaks are "\n"; there is no NUL and no lone surrogate.
    QString Metin;
    /// Ascending and without overlap; what they don't cover has the default format.
    QList<BiçimliParça> Parçalar;
};

/// The text can't be read. Has no number.
class MetinOkumaHatası : public Hata
{
public:
    using Hata::Hata;
};

// What a document says of itself.
#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

/// Each is empty where the document doesn't say it. No control characters, no lone surrogates, no blanks at
/// either end.
struct BelgeBilgisi
{
    QString Yazar;
    QString Başlık;
    QString Yer;             ///< of publication
    QString Tarih;           ///< of publication, as somebody has written it
    QString OluşturmaTarihi; ///< of the document, as "12.05.2004"

    bool operator==(const BelgeBilgisi&) const = default;
};

/// The two properties by the names under which they are written.
inline constexpr QStringView YayımYeriÖzelliği = u"Yayım Yeri";
inline constexpr QStringView YayımTarihiÖzelliği = u"Yayım Tarihi";

/// Takes a property whose name a user has given, if it tells place or date of publication. The first one
/// that isn't empty counts. Case, blanks and the dots of i make no difference in the name.
void BelgeÖzelliğiEkle(BelgeBilgisi& bilgi, QStringView ad, const QString& değer);

/// A property's text without what BelgeBilgisi excludes, and of bearable length.
QString BelgeÖzelliği(QString ham);

/// Empty for a day that can't be meant: programs without a clock write the first days of some epoch.
QString BelgeTarihi(QDate gün);

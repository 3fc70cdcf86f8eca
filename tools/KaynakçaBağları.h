// The files that a record of a bibliography links.
#pragma once

#include <QString>
#include <QStringList>

struct KaynakçaKaydı;
enum class KaynakçaTürü;

/// The paths of the record's files as they stand, those of other machines left out.
QStringList BağlıDosyalar(const KaynakçaKaydı& kayıt, KaynakçaTürü tür);

/// What the linked files give for an article's text.
struct BağlıMetin
{
    bool Var = false; ///< a text or RTF file is linked
    QString Metin = {};
    QString Ret = {}; ///< why there is no text, a sentence that names the file; empty where nothing is linked
};

/// Reads the first text or RTF file of them.
/// @param klasör what relative paths begin at
BağlıMetin BağlıMetniOku(const QStringList& yollar, const QString& klasör);

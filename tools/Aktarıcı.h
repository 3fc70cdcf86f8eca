// Takes articles into an open library, by the rules that hold for all sources.
#pragma once

#include "store/MakaleKuralları.h"
#include "store/Recordset.h"
#include "tools/MakaleKaynağı.h"

#include <QHash>
#include <QSet>

#include <functional>

class Database;

/// What a source's articles must have.
enum class Talep
{
    Pencereler, ///< what the entry windows ask for
    Kitaplık    ///< what the library can't do without
};

/// How author, title, place and date come in.
enum class Yazım
{
    YazılmışGibi, ///< as if typed
    OlduğuGibi
};

enum class AktarımSonucu
{
    Alındı,
    AynıBaşlıklı, ///< taken, but another article has the title, and the program shows the first only
    Atlandı,      ///< the library has it
    Reddedildi
};

/// What became of one article.
struct AktarımSatırı
{
    AktarımSonucu Sonuç;
    QString Nerede, Yazar, Başlık;
    QString Neden; ///< of a refusal, a Turkish sentence
};

/// Works within the caller's transaction; a failure leaves that to be rolled back.
class Aktarıcı
{
public:
    /// @param kitaplık must outlive this
    /// @param yaz false to go by the rules only and write nothing
    Aktarıcı(const Database& kitaplık, Yazım yazım, bool yaz);

    /// Throws what the library throws.
    AktarımSatırı Al(const GelenMakale& gelen, Talep talep);

private:
    using Özetler = QSet<QByteArray>; // of texts

    Özetler& aynıAdlılar(const Makale& makale);
    bool başlıkVar(const QString& başlık);

    const Database& kitaplık_;
    Yazım yazım_;
    bool yaz_;
    Recordset kayıtlar_;
    // What was met so far, whether it stood in the library or came in; the keys are folded.
    QHash<QString, Özetler> metinler_; // by author and title
    QSet<QString> başlıklar_;
};

/// Why the article isn't taken; empty where it is.
QString RetNedeni(const Makale& makale, Talep talep);

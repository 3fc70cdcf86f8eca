// LaTeX and names of people made into plain text, by the library bibutils.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

/// Holds the library's settings; cheap to use again and again. What the library would write to the standard
/// error stream is an error here. Where memory runs out inside it, it may end the process.
class BibÇözücü
{
public:
    BibÇözücü();
    ~BibÇözücü();
    BibÇözücü(const BibÇözücü&) = delete;
    BibÇözücü& operator=(const BibÇözücü&) = delete;

    /// @param değer UTF-8 with balanced braces; its line breaks stay
    /// Throws AraçHatası, a sentence without file and line, for a code that isn't known.
    QString Latex(const QByteArray& değer);

    /// The names of a field of BibTeX, given name first; one in braces as it is. "others" comes as it stands.
    /// Throws as Latex.
    QStringList BibAdları(const QByteArray& değer);
    /// The name of a field of RIS, "KAYA, Ali" as "Ali KAYA"; one without a comma as it is.
    QString RisAdı(const QByteArray& değer);

private:
    struct Ayarlar;

    QByteArray hazırla(const QByteArray& değer);
    qsizetype koduHazırla(const QByteArray& değer, qsizetype yer, QByteArray& sonuç);
    bool biliniyor(const QByteArray& kod);
    QStringList sor(Ayarlar& ayarlar, const QByteArray& kayıt, const char* etiket);

    std::unique_ptr<Ayarlar> bib_, ris_;
    QHash<QByteArray, bool> kodlar_; // whether the library knows them, as far as it was asked
};

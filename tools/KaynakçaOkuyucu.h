// Articles from a bibliography in BibTeX or RIS.
#pragma once

#include "tools/BibÇözücü.h"
#include "tools/KaynakçaKayıtları.h"
#include "tools/KayıtDosyası.h"
#include "tools/MakaleKaynağı.h"

#include <array>

/// By the name's ending, else by what the file's beginning holds; nothing where it is no bibliography, or
/// can't be read.
std::optional<KaynakçaTürü> KaynakçaTürüBul(const QString& yol);

/// Reads a bibliography record by record. An article's author is all names, given name first, divided by
/// commas; its place the journal, or the town where there is none; its text that of a linked text or RTF
/// file, else the abstract, else the note. What BibKaydı and RisKaydı wrote comes back letter for letter, but
/// for fields that were changed since.
class KaynakçaOkuyucu : public MakaleKaynağı
{
public:
    /// Throws what KayıtDosyası throws.
    /// @param bekçi asked between lines; must outlive this
    KaynakçaOkuyucu(const QString& yol, KaynakçaTürü tür, const DurdurmaBekçisi& bekçi);

    /// Throws as MakaleKaynağı; a source can't be trusted where KaynakçaKayıtları or BibÇözücü throws.
    std::optional<GelenMakale> Sonraki() override;
    qint64 Konum() const override { return dosya_.Konum(); } ///< bytes
    qint64 Boy() const override { return dosya_.Boy(); }

private:
    using TamDeğerler = std::array<std::optional<QString>, 5>; // those that have their stamp

    bool bib() const { return tür_ == KaynakçaTürü::BibTeX; }
    QByteArray ilkAd(const KaynakçaKaydı& kayıt, const QByteArrayList& adlar) const;
    QString çöz(const KaynakçaKaydı& kayıt, const QByteArrayList& adlar);
    GelenMakale gelen(KaynakçaKaydı& kayıt);
    void üsttenAl(KaynakçaKaydı& kayıt, GelenMakale& gelen);
    void üstleriOku();
    QString harfler(const QByteArray& alan) const;
    TamDeğerler tamDeğerler(const KaynakçaKaydı& kayıt);
    QStringList adlar(const KaynakçaAlanı& alan);
    QString yazar(const KaynakçaKaydı& kayıt);
    QString başlık(const KaynakçaKaydı& kayıt);
    QString yer(const KaynakçaKaydı& kayıt);
    QString tarih(const KaynakçaKaydı& kayıt);
    QString metin(const KaynakçaKaydı& kayıt, GelenMakale& gelen);
    QString özet(const KaynakçaKaydı& kayıt);

    KaynakçaTürü tür_;
    QString klasör_; // of the file, for its links
    const DurdurmaBekçisi& bekçi_;
    KayıtDosyası dosya_;
    std::unique_ptr<KaynakçaKayıtları> kayıtlar_;
    BibÇözücü çözücü_;
    std::optional<QHash<QByteArray, KaynakçaKaydı>> üstler_; // those that crossref names, once there is one
};

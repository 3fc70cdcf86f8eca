// The records of a bibliography as they stand: fields with their lines, nothing decoded.
#pragma once

#include <QByteArray>
#include <QHash>

#include <memory>
#include <optional>
#include <vector>

class KayıtDosyası;

enum class KaynakçaTürü
{
    BibTeX,
    Ris
};

struct KaynakçaAlanı
{
    QByteArray Ad;    ///< a name of BibTeX in lower case, a code of RIS
    QByteArray Değer; ///< UTF-8. BibTeX: without its outer braces; RIS: further lines behind "\n"
    qint64 Satır;     ///< where it begins; counts from 1
};

struct KaynakçaKaydı
{
    QByteArray Tür;     ///< in lower case
    QByteArray Anahtar; ///< may be empty
    qint64 Satır = 0;   ///< where it begins; counts from 1
    std::vector<KaynakçaAlanı> Alanlar;

    /// The first field of that name; nullptr where there is none.
    const KaynakçaAlanı* Alan(QByteArrayView ad) const;
    /// The value of that field; empty where there is none.
    QByteArray Değer(QByteArrayView ad) const;
};

/// Gives a file's records one by one; needs memory for the longest one.
class KaynakçaKayıtları
{
public:
    KaynakçaKayıtları() = default;
    virtual ~KaynakçaKayıtları() = default;
    KaynakçaKayıtları(const KaynakçaKayıtları&) = delete;
    KaynakçaKayıtları& operator=(const KaynakçaKayıtları&) = delete;

    /// Nothing at the end. Throws AraçHatası with the line for what can't be told apart: BibTeX that breaks
    /// its grammar or names an abbreviation that isn't defined; RIS with an unknown code, or a record without
    /// beginning or end. Throws also what KayıtDosyası::Oku throws.
    virtual std::optional<KaynakçaKaydı> Sonraki() = 0;

    /// @param dosya must outlive the result
    static std::unique_ptr<KaynakçaKayıtları> Aç(KayıtDosyası& dosya, KaynakçaTürü tür);
};

/// Entries of BibTeX. Text between them is passed over, and `@comment` and `@preamble`.
class BibKayıtları : public KaynakçaKayıtları
{
public:
    explicit BibKayıtları(KayıtDosyası& dosya);
    std::optional<KaynakçaKaydı> Sonraki() override;

private:
    bool satırEkle();
    char bak();
    char kayıttaBak();
    void ilerle();
    void boşlukGeç();
    void satırıGeç();
    bool girişBul();
    QByteArray ayraçaKadar(QByteArrayView ayraçlar);
    QByteArray ayraçİçi();
    QByteArray tırnakİçi();
    QByteArray parça();
    QByteArray değer(const QByteArray& ad);
    void alanlarıOku(char son);
    [[noreturn]] void hata(const QString& cümle) const;

    KayıtDosyası& dosya_;
    QByteArray tampon_; // whole lines, from that in which the record begins
    qsizetype yer_ = 0; // in it
    qint64 satırNo_ = 0;
    int açık_ = 0;        // braces in the text between entries
    KaynakçaKaydı kayıt_; // that is being read; its line is 0 between entries
    QHash<QByteArray, QByteArray> kısaltmalar_;
};

/// Records of RIS, from TY to ER. Lines without a code between them are passed over.
class RisKayıtları : public KaynakçaKayıtları
{
public:
    explicit RisKayıtları(KayıtDosyası& dosya) : dosya_(dosya) {}
    std::optional<KaynakçaKaydı> Sonraki() override;

private:
    void koduAl(KaynakçaKaydı& kayıt, const QByteArray& kod, const QByteArray& değer) const;

    KayıtDosyası& dosya_;
};

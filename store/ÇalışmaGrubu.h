// The workgroup file: the accounts, and what it knows of the library's password.
#pragma once

#include "store/Bağlantı.h"
#include "store/KitaplıkMührü.h"

#include <QString>

#include <optional>
#include <vector>

class User;

/// An open workgroup file. Owned by a Workspace.
class ÇalışmaGrubu
{
public:
    /// Creates the file with its owner account. The library's password is kept as a salted hash: with
    /// it, a wrong password can be told from a damaged library. Throws DosyaVar when the file exists.
    /// @param kitaplıkTuzu the library file's, see KitaplıkTuzu
    static void Oluştur(const QString& yol, const User& sahip, const QString& kitaplıkParolası,
                        const QByteArray& kitaplıkTuzu);

    /// Throws KitaplıkDeğil when it is no workgroup file, DosyaBozuk, DosyaYarım or DosyaBoş when it is
    /// damaged.
    explicit ÇalışmaGrubu(const QString& yol, AçmaKipi kip = AçmaKipi::OkuYaz);

    bool HesapGeçerli(const QString& ad, const QString& parola);
    /// Whether the name is that of the owner account.
    bool Sahip(const QString& ad);
    bool KitaplıkParolasıDoğru(const QString& parola);
    /// Random bytes that were drawn when the library was made: they tell its copies from another library's.
    QByteArray KitaplıkKimliği();
    /// The salt of the library file, without which nothing in it can be read; empty where it isn't known.
    QByteArray KitaplıkTuzu();
    void KitaplıkTuzu(const QByteArray& tuz); ///< writes it down unless it is there already

    /// Nothing while the library is being changed, and where nobody has sealed it since.
    std::optional<Mühür> KitaplıkMührü();
    void Mühürle(const Mühür& mühür); ///< writes it down unless it is there already
    void MührüKır();                  ///< to be called before the library is changed

    std::vector<User> Hesaplar();
    void Ekle(const User& hesap); ///< throws HesapVar when the name is taken
    void Sil(const QString& ad);  ///< throws ÖğeYok for an unknown name

private:
    bool tabloVar(const char* ad);

    Bağlantı bağlantı_;
};

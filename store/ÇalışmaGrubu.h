// The workgroup file: the accounts, and what it knows of the library's password.
#pragma once

#include "store/Bağlantı.h"

#include <QString>

#include <vector>

class User;

/// An open workgroup file. Owned by a Workspace.
class ÇalışmaGrubu
{
public:
    /// Creates the file with its owner account. The library's password is kept as a salted hash: with
    /// it, a wrong password can be told from a damaged library. Throws 3204 when the file exists.
    static void Oluştur(const QString& yol, const User& sahip, const QString& kitaplıkParolası);

    /// Throws 3343 when it is no workgroup file, 3049, 3901 or 3902 when it is damaged.
    explicit ÇalışmaGrubu(const QString& yol, AçmaKipi kip = AçmaKipi::OkuYaz);

    bool HesapGeçerli(const QString& ad, const QString& parola);
    /// Whether the name is that of the owner account.
    bool Sahip(const QString& ad);
    bool KitaplıkParolasıDoğru(const QString& parola);

    std::vector<User> Hesaplar();
    void Ekle(const User& hesap); ///< throws 3390 when the name is taken
    void Sil(const QString& ad);  ///< throws 3265 for an unknown name

private:
    Bağlantı bağlantı_;
};

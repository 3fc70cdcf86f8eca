// A session of one account, and the accounts themselves.
#pragma once

#include "store/Database.h"
#include "store/User.h"

#include <QString>

#include <memory>
#include <vector>

class Bağlantı;
class ÇalışmaGrubu;

/// The accounts of a workspace's workgroup file. Must not outlive the workspace.
class UserCollection
{
public:
    UserCollection(ÇalışmaGrubu& grup, bool sahip) : grup_(grup), sahip_(sahip) {}

    /// All accounts in the order of their names.
    std::vector<User> Tümü() const;
    /// Writes the account into the workgroup file. Throws İzinYok for any but the owner's workspace, HesapVar
    /// when the name is taken.
    void Append(const User& kullanıcı);
    /// Throws İzinYok for any but the owner's workspace and for the owner account, ÖğeYok for an unknown
    /// name.
    void Delete(const QString& ad);

private:
    ÇalışmaGrubu& grup_;
    bool sahip_;
};

/// Made by DBEngine for a valid account. Move-only; closed by Close or its destructor.
class Workspace
{
public:
    Workspace(std::unique_ptr<ÇalışmaGrubu> grup, const QString& ad, const QString& kullanıcı);
    ~Workspace();
    Workspace(Workspace&&) noexcept;
    Workspace& operator=(Workspace&&) noexcept;

    const QString& Name() const { return ad_; }
    const QString& UserName() const { return kullanıcı_; }

    /// Throws NesneKapalı after Close.
    UserCollection Users() const;
    /// An account yet to be given to Users().Append.
    User CreateUser(const QString& ad) const { return User(ad); }

    /// Opens a library; the first change in it breaks its seal. Throws ParolaYanlış for a wrong password,
    /// DosyaKullanımda when it can't be opened alone though that was asked for, KitaplıkDeğil or SürümYeni
    /// when it is no library or a later program's, and what Bağlantı's constructor throws.
    /// @param bağlantıMetni ";PWD=..." with the keyword in any letter case
    Database OpenDatabase(const QString& yol, bool tekBaşına, bool saltOku,
                          const QString& bağlantıMetni) const;

    void Close();

private:
    ÇalışmaGrubu& grup() const;

    std::shared_ptr<ÇalışmaGrubu> grup_; // libraries opened from here know it, too
    QString ad_, kullanıcı_;
};

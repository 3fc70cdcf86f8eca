#include "store/Workspace.h"

#include "store/KitaplıkDosyası.h"
#include "store/ÇalışmaGrubu.h"

std::vector<User> UserCollection::Tümü() const
{
    return grup_.Hesaplar();
}

void UserCollection::Append(const User& kullanıcı)
{
    if (!sahip_)
        throw VeritabanıHatası(HataNo::İzinYok, kullanıcı.Name());
    grup_.Ekle(kullanıcı);
}

void UserCollection::Delete(const QString& ad)
{
    if (!sahip_ || grup_.Sahip(ad))
        throw VeritabanıHatası(HataNo::İzinYok, ad);
    grup_.Sil(ad);
}

Workspace::Workspace(std::unique_ptr<ÇalışmaGrubu> grup, const QString& ad, const QString& kullanıcı)
    : grup_(std::move(grup)), ad_(ad), kullanıcı_(kullanıcı)
{
}

Workspace::~Workspace() = default;
Workspace::Workspace(Workspace&&) noexcept = default;
Workspace& Workspace::operator=(Workspace&&) noexcept = default;

ÇalışmaGrubu& Workspace::grup() const
{
    if (!grup_)
        throw VeritabanıHatası(HataNo::NesneKapalı);
    return *grup_;
}

UserCollection Workspace::Users() const
{
    return {grup(), grup().Sahip(kullanıcı_)};
}

Database Workspace::OpenDatabase(const QString& yol, bool tekBaşına, bool saltOku,
                                 const QString& bağlantıMetni) const
{
    auto bağlantı = KitaplıkBağlantısı(yol, BağlantıMetnindenParola(bağlantıMetni),
                                       saltOku ? AçmaKipi::Oku : AçmaKipi::OkuYaz, grup());
    if (tekBaşına) { // the lock is taken by the first transaction, and kept
        bağlantı->Metin("PRAGMA locking_mode=EXCLUSIVE");
        bağlantı->Çalıştır("BEGIN EXCLUSIVE");
        bağlantı->Çalıştır("COMMIT");
    }
    if (!saltOku)
        bağlantı->İlkYazmadaÇağır([grup = grup_] { grup->MührüKır(); });
    return Database(std::move(bağlantı));
}

void Workspace::Close()
{
    grup_.reset();
}

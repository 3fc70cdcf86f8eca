#include "store/ÇalışmaGrubu.h"

#include "store/DosyaTanıma.h"
#include "store/User.h"

#include <QCryptographicHash>
#include <QMessageAuthenticationCode>

namespace {

constexpr int BiçimSürümü = 1;
constexpr qint64 SahipRolü = 1;
constexpr qint64 KullanıcıRolü = 0;

// Keyed with a constant: the file guards against a curious glance and against damage, since every page
// carries a check value; its accounts are fixed in the program anyway.
Anahtar grupAnahtarı()
{
    return {AnahtarTürü::HamAnahtar,
            QCryptographicHash::hash("Belgenar/Makale.tps/1", QCryptographicHash::Sha256)};
}

QByteArray özet(const QByteArray& tuz, const QString& parola)
{
    return QMessageAuthenticationCode::hash(parola.toUtf8(), tuz, QCryptographicHash::Sha256);
}

QByteArray baytlar(const Deyim& deyim, int sütun)
{
    const std::string_view değer = deyim.Baytlar(sütun);
    return {değer.data(), static_cast<qsizetype>(değer.size())};
}

bool parolaUyar(Deyim& tuzVeÖzet, const QString& parola)
{
    return tuzVeÖzet.Adım() && özet(baytlar(tuzVeÖzet, 0), parola) == baytlar(tuzVeÖzet, 1);
}

void hesapYaz(Bağlantı& bağlantı, const User& hesap, qint64 rol)
{
    const QByteArray tuz = YeniTuz();
    Deyim(bağlantı, "INSERT INTO Hesaplar(Ad, Pid, Rol, Tuz, Ozet) VALUES(?1, ?2, ?3, ?4, ?5)")
        .Bağla(1, hesap.Name())
        .Bağla(2, hesap.PID())
        .Bağla(3, rol)
        .Bağla(4, tuz)
        .Bağla(5, özet(tuz, hesap.Password()))
        .Çalıştır();
}

/// Files of earlier programs have no such table.
void tuzYaz(Bağlantı& bağlantı, const QByteArray& tuz)
{
    bağlantı.Çalıştır("CREATE TABLE IF NOT EXISTS KitaplikTuzu(Tuz BLOB NOT NULL)");
    bağlantı.Çalıştır("DELETE FROM KitaplikTuzu");
    Deyim(bağlantı, "INSERT INTO KitaplikTuzu(Tuz) VALUES(?1)").Bağla(1, tuz).Çalıştır();
}

} // namespace

void ÇalışmaGrubu::Oluştur(const QString& yol, const User& sahip, const QString& kitaplıkParolası,
                           const QByteArray& kitaplıkTuzu)
{
    Bağlantı bağlantı(yol, grupAnahtarı(), AçmaKipi::Oluştur);
    İşlem işlem(bağlantı);
    bağlantı.Çalıştır("CREATE TABLE Hesaplar(Ad TEXT PRIMARY KEY NOT NULL, Pid TEXT NOT NULL,"
                      " Rol INTEGER NOT NULL, Tuz BLOB NOT NULL, Ozet BLOB NOT NULL)");
    bağlantı.Çalıştır("CREATE TABLE Kitaplik(Tuz BLOB NOT NULL, Ozet BLOB NOT NULL)");
    bağlantı.Çalıştır("PRAGMA user_version=" + QByteArray::number(BiçimSürümü));
    hesapYaz(bağlantı, sahip, SahipRolü);
    const QByteArray tuz = YeniTuz();
    Deyim(bağlantı, "INSERT INTO Kitaplik(Tuz, Ozet) VALUES(?1, ?2)")
        .Bağla(1, tuz)
        .Bağla(2, özet(tuz, kitaplıkParolası))
        .Çalıştır();
    tuzYaz(bağlantı, kitaplıkTuzu);
    işlem.Onayla();
}

ÇalışmaGrubu::ÇalışmaGrubu(const QString& yol, AçmaKipi kip)
try : bağlantı_(yol, grupAnahtarı(), kip) {
    const qint64 sürüm = bağlantı_.Sayı("PRAGMA user_version");
    if (sürüm > BiçimSürümü)
        throw VeritabanıHatası(HataNo::SürümYeni, yol);
    if (bağlantı_.Sayı("SELECT count(*) FROM sqlite_master WHERE name IN('Hesaplar', 'Kitaplik')") != 2)
        throw VeritabanıHatası(HataNo::KitaplıkDeğil, yol);
} catch (const VeritabanıHatası& hata) {
    throw VeritabanıHatası(AnahtarDoğruysaTanı(yol, hata.Tür()), yol);
}

bool ÇalışmaGrubu::HesapGeçerli(const QString& ad, const QString& parola)
{
    Deyim deyim(bağlantı_, "SELECT Tuz, Ozet FROM Hesaplar WHERE Ad=?1");
    deyim.Bağla(1, ad);
    return parolaUyar(deyim, parola);
}

bool ÇalışmaGrubu::Sahip(const QString& ad)
{
    Deyim deyim(bağlantı_, "SELECT Rol FROM Hesaplar WHERE Ad=?1");
    deyim.Bağla(1, ad);
    return deyim.Adım() && deyim.Sayı(0) == SahipRolü;
}

bool ÇalışmaGrubu::KitaplıkParolasıDoğru(const QString& parola)
{
    Deyim deyim(bağlantı_, "SELECT Tuz, Ozet FROM Kitaplik");
    return parolaUyar(deyim, parola);
}

QByteArray ÇalışmaGrubu::KitaplıkKimliği()
{
    Deyim deyim(bağlantı_, "SELECT Tuz FROM Kitaplik");
    return deyim.Adım() ? baytlar(deyim, 0) : QByteArray();
}

bool ÇalışmaGrubu::tabloVar(const char* ad)
{
    return bağlantı_.Sayı(QByteArray("SELECT count(*) FROM sqlite_master WHERE name='") + ad + "'") != 0;
}

QByteArray ÇalışmaGrubu::KitaplıkTuzu()
{
    if (!tabloVar("KitaplikTuzu"))
        return {};
    Deyim deyim(bağlantı_, "SELECT Tuz FROM KitaplikTuzu");
    return deyim.Adım() ? baytlar(deyim, 0) : QByteArray();
}

void ÇalışmaGrubu::KitaplıkTuzu(const QByteArray& tuz)
{
    if (KitaplıkTuzu() == tuz)
        return;
    İşlem işlem(bağlantı_);
    tuzYaz(bağlantı_, tuz);
    işlem.Onayla();
}

std::optional<Mühür> ÇalışmaGrubu::KitaplıkMührü()
{
    if (!tabloVar("KitaplikMuhru"))
        return {};
    Deyim deyim(bağlantı_, "SELECT Kimlik, Ozet, Siralama, Siki FROM KitaplikMuhru");
    if (!deyim.Adım())
        return {};
    return Mühür{baytlar(deyim, 0), baytlar(deyim, 1), baytlar(deyim, 2),
                 deyim.Sayı(3) != 0 ? Sıkılık::Sıkı : Sıkılık::Değişmiş};
}

void ÇalışmaGrubu::Mühürle(const Mühür& mühür)
{
    if (KitaplıkMührü() == mühür)
        return;
    İşlem işlem(bağlantı_);
    bağlantı_.Çalıştır("CREATE TABLE IF NOT EXISTS KitaplikMuhru(Kimlik BLOB NOT NULL, Ozet BLOB NOT NULL,"
                       " Siralama BLOB NOT NULL, Siki INTEGER NOT NULL)");
    bağlantı_.Çalıştır("DELETE FROM KitaplikMuhru");
    Deyim(bağlantı_, "INSERT INTO KitaplikMuhru(Kimlik, Ozet, Siralama, Siki) VALUES(?1, ?2, ?3, ?4)")
        .Bağla(1, mühür.Kimlik)
        .Bağla(2, mühür.Özet)
        .Bağla(3, mühür.Sıralama)
        .Bağla(4, mühür.Hali == Sıkılık::Sıkı ? 1 : 0)
        .Çalıştır();
    işlem.Onayla();
}

void ÇalışmaGrubu::MührüKır()
{
    if (!KitaplıkMührü())
        return;
    İşlem işlem(bağlantı_);
    bağlantı_.Çalıştır("DELETE FROM KitaplikMuhru");
    işlem.Onayla();
}

std::vector<User> ÇalışmaGrubu::Hesaplar()
{
    std::vector<User> hesaplar;
    Deyim deyim(bağlantı_, "SELECT Ad, Pid FROM Hesaplar ORDER BY Ad");
    while (deyim.Adım()) {
        User& hesap = hesaplar.emplace_back(deyim.Metin(0));
        hesap.PID(deyim.Metin(1));
    }
    return hesaplar;
}

void ÇalışmaGrubu::Ekle(const User& hesap)
{
    İşlem işlem(bağlantı_);
    Deyim varMı(bağlantı_, "SELECT 1 FROM Hesaplar WHERE Ad=?1");
    varMı.Bağla(1, hesap.Name());
    if (varMı.Adım())
        throw VeritabanıHatası(HataNo::HesapVar, hesap.Name());
    varMı.Sıfırla();
    hesapYaz(bağlantı_, hesap, KullanıcıRolü);
    işlem.Onayla();
}

void ÇalışmaGrubu::Sil(const QString& ad)
{
    İşlem işlem(bağlantı_);
    Deyim(bağlantı_, "DELETE FROM Hesaplar WHERE Ad=?1").Bağla(1, ad).Çalıştır();
    if (bağlantı_.DeğişenSatır() == 0)
        throw VeritabanıHatası(HataNo::ÖğeYok, ad);
    işlem.Onayla();
}

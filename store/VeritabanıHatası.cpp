#include "store/VeritabanıHatası.h"

namespace {

QString cümle(HataNo numara)
{
    switch (numara) {
    case HataNo::KayıtYok:
        return QStringLiteral("Geçerli kayıt yok.");
    case HataNo::KayıtAçılmadı:
        return QStringLiteral("Kayıt, eklemeye ya da değiştirmeye açılmadan yazılamaz.");
    case HataNo::DosyaYok:
        return QStringLiteral("Dosya bulunamadı.");
    case HataNo::DiskDolu:
        return QStringLiteral("Diskte yeterli yer yok.");
    case HataNo::SaltOkunur:
        return QStringLiteral("Dosyaya ya da klasöre yazılamıyor; salt okunur.");
    case HataNo::HesapGeçersiz:
        return QStringLiteral("Hesap adı ya da hesap parolası geçerli değil.");
    case HataNo::ParolaYanlış:
        return QStringLiteral("Veritabanı parolası geçerli değil.");
    case HataNo::SürümYeni:
        return QStringLiteral("Dosya, bu programın tanımadığı bir sürümle oluşturulmuş.");
    case HataNo::DiskHatası:
        return QStringLiteral("Disk okuma ya da yazma hatası.");
    case HataNo::YolGeçersiz:
        return QStringLiteral("Dosya yolu geçerli değil; adında UTF-8 olmayan baytlar var.");
    case HataNo::ÇokDosyaAçık:
        return QStringLiteral("Çok fazla dosya açık; sistem yenisini açamıyor.");
    case HataNo::DosyaKullanımda:
        return QStringLiteral("Dosya kullanımda; başka bir program onu açık tutuyor.");
    case HataNo::DosyaBozuk:
        return QStringLiteral("Dosya bozuk; içindekilerin bir bölümü okunamıyor.");
    case HataNo::İzinYok:
        return QStringLiteral("Bu işlem için izin yok.");
    case HataNo::İşlemDurduruldu:
        return QStringLiteral("İşlem durduruldu.");
    case HataNo::AlanYok:
        return QStringLiteral("Sorguda tanınmayan bir alan adı var.");
    case HataNo::Sözdizimi:
        return QStringLiteral("Sorguda sözdizimi hatası var.");
    case HataNo::TabloYok:
        return QStringLiteral("Tablo bulunamadı.");
    case HataNo::DeğerÇokUzun:
        return QStringLiteral("Değer, alana sığmayacak kadar uzun.");
    case HataNo::KayıtSilinmiş:
        return QStringLiteral("Kayıt silinmiş.");
    case HataNo::DosyaVar:
        return QStringLiteral("Dosya zaten var.");
    case HataNo::ÖğeYok:
        return QStringLiteral("Bu adda bir öğe yok.");
    case HataNo::KitaplıkDeğil:
        return QStringLiteral("Dosya bir kitaplık dosyası değil.");
    case HataNo::HesapVar:
        return QStringLiteral("Bu adda bir hesap zaten var.");
    case HataNo::NesneKapalı:
        return QStringLiteral("Nesne kapatılmış.");
    case HataNo::DeğerGeçersiz:
        return QStringLiteral("Değerde kullanılamayan bir karakter (NUL) var.");
    case HataNo::DosyaYarım:
        return QStringLiteral("Dosya yarım; sonu eksik.");
    case HataNo::DosyaBoş:
        return QStringLiteral("Dosya boş.");
    case HataNo::KlasörlerAyrıDeğil:
        return QStringLiteral("Yedekler kitaplığın klasöründe, kitaplık da yedeğin içinde olamaz.");
    }
    return QStringLiteral("Bilinmeyen hata.");
}

QString cümle(HataNo numara, const QString& ek)
{
    return ek.isEmpty() ? cümle(numara) : QStringLiteral("%1 (%2)").arg(cümle(numara), ek);
}

} // namespace

VeritabanıHatası::VeritabanıHatası(HataNo numara, const QString& ek)
    : Hata(cümle(numara, ek), static_cast<int>(numara))
{
}

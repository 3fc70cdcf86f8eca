// What --yardım shows.
#pragma once

#include <QString>

inline const QString YardımMetni = QStringLiteral(
    R"METIN(belgenar-kitaplik: Belgenar'ın makale kitaplığını oluşturur, doldurur, döker, yedekler, denetler ve tarar.

Kullanım:
  belgenar-kitaplik oluştur KLASÖR       Boş bir kitaplık oluşturur; var olanın üzerine yazmaz.
  belgenar-kitaplik aktar KLASÖR KAYNAK…
                                         KAYNAK'lardaki makaleleri kitaplığa ekler: bir klasördeki belgeler
                                         (txt, rtf, doc, docx, odt, html, epub, pdf), JSON Lines, CSV, BibTeX,
                                         RIS. "-" standart girdidir (JSON Lines).
      --kalıp KALIP      Belgenin yolundan künye, örneğin "{yazar}/{başlık}", "{yazar} - {başlık} ({tarih})".
      --yazar, --yer, --tarih DEĞER      Kaynakta bulunmayan künye.
      --sütunlar ADLAR   CSV sütunları, örneğin "yazar,başlık,-,yer,metin"; yoksa ilk satır adlardır.
      --olduğu-gibi      Yazar ile başlığı büyük harfe, kesme işaretini aksana çevirmez.
      --rapor DOSYA      Her makalenin ne olduğunu CSV olarak yazar.
  belgenar-kitaplik dök KLASÖR           Bütün makaleleri standart çıktıya JSON Lines olarak yazar; bozuk bir
                                         kitaplıktan okunabilenleri yazar, okunamayanları bildirir.
  belgenar-kitaplik ver KLASÖR HEDEF --biçim BİÇİM
                                         Makaleleri csv, json, bib, ris, html ya da pdf dosyasına, txt ya da rtf
                                         klasörüne yazar.
      --yazar AD, --sözcük SÖZCÜK        Yalnızca bu yazarınkileri, metninde bu yazı geçenleri.
  belgenar-kitaplik yedekle KLASÖR HEDEF Kitaplığın tarihli bir kopyasını alır ve okuyup denetler.
      --sakla SAYI       Bundan eski yedekleri siler; söylenmezse 10.
  belgenar-kitaplik geri-yükle HEDEF KLASÖR
                                         Yedekleri sayar.
      --yedek AD         Bu yedeği geri koyar ("son": en yenisini); yerindekini yanında saklar.
  belgenar-kitaplik kurtar KLASÖR YENİ_KLASÖR
                                         Bozuk bir kitaplıktan okunabilen her makaleyle yenisini yapar.
  belgenar-kitaplik denetle KLASÖR       Kitaplığın iki dosyasını denetler; hiçbir şeyi değiştirmez.
  belgenar-kitaplik onar KLASÖR          Denetimin bulduğu yazım kusurlarını giderir, aynı başlıkları numaralar;
                                         önce yedek alır.
      --yedek HEDEF      Yedeğin yeri; söylenmezse KLASÖR'ün yanında, adı -yedek ile biten klasör.
  belgenar-kitaplik ara KLASÖR SÖZCÜK…   Metninde, başlığında ya da yazar adında bütün sözcükler geçen makaleleri
                                         en uygunundan başlayarak gösterir.
      --kök              Sözcüğün sonundaki ünsüz yumuşayabilir: kitap, kitabı.
      --json             Her makaleyi bir JSON nesnesi olarak yazar.
  belgenar-kitaplik --yardım             Bu açıklamayı gösterir.

Her komutta --dene ne yapılacağını söyler, hiçbir şeyi değiştirmez. Her komut ya tamamlanır ya hiçbir şeyi
değiştirmez.

KLASÖR, Makale.mde ile Makale.tps dosyalarının bulunduğu program klasörüdür. Program ya da başka bir
araç kitaplığı açık tutarken hiçbir komut çalışmaz.

JSON Lines: UTF-8, her satırda bir nesne, her nesnede beş metin:
  {"YazarAdi": "…", "MakaleBasligi": "…", "YayimYeri": "…", "YayimTarihi": "…", "MakaleMetni": "…"}
Yazar adı ile başlık boş olamaz. Boş satırlar atlanır.

Çıkış durumu: 0 başarılı, 1 başarısız, bir şey reddedildi ya da sorun bulundu, 2 yanlış kullanım.
Komutlarla seçenekler Türkçe harfsiz de yazılabilir: olustur, dok, --kalip.
)METIN");

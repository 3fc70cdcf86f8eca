// What the windows' tests share: a program folder of its own, opened as the start-up does, with settings
// of its own.
#pragma once

#include "library_fixture.h"

#include "app/Ayarlar.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "forms/AnaForm.h"

#include <QMessageBox>

#include <functional>

/// How long waits go on at most, in ms; they end as soon as what they wait for is there.
constexpr int BeklemeSınırı = 120'000;

/// Sets the common globals and lets go of them when destroyed. One at a time.
class DenemeProgramı
{
public:
    explicit DenemeProgramı(const QList<Makale>& makaleler);
    ~DenemeProgramı();

    const QString& Klasör() const { return kitaplık_.Klasör(); }
    QString AyarKlasörü() const { return ayarlar_.path(); }

private:
    DenemeKitaplığı kitaplık_;
    QTemporaryDir ayarlar_;
};

/// What the store holds for a setting, as text; null where it holds nothing.
template<class Değer> QString AyarMetni(const AyarAnahtarı<Değer>& ayar)
{
    return AyarMetniOku(AyarUygulamaAdı, AyarBölümü, ayar.Ad, {});
}
/// Puts any text into the store, also where a number is meant.
template<class Değer> void AyarMetni(const AyarAnahtarı<Değer>& ayar, const QString& metin)
{
    AyarMetniYaz(AyarUygulamaAdı, AyarBölümü, ayar.Ad, metin);
}

/// Answers the next message box, once it stands, and keeps what it said.
class KutuYanıtlayıcı
{
public:
    enum class Yanıt
    {
        Kapat,
        Tamam = QMessageBox::Ok,
        Evet = QMessageBox::Yes,
        Hayır = QMessageBox::No
    };
    /// @param önce called while the box stands, before it is answered
    explicit KutuYanıtlayıcı(Yanıt yanıt, std::function<void(QMessageBox&)> önce = {});
    ~KutuYanıtlayıcı();

    int Sayı = 0; ///< boxes answered
    QString Metin;

private:
    std::unique_ptr<class QTimer> saat_;
};

/// The main window on such a folder, for the tests that drive it.
struct AnaFormDenemesi
{
    explicit AnaFormDenemesi(const QList<Makale>& makaleler) : Program(makaleler) {}
    /// Loads and shows the window.
    void Göster()
    {
        Form = std::make_unique<AnaForm>();
        Form->Göster();
    }
    template<class T> T& Bul(const QString& ad)
    {
        return *static_cast<T*>(Form->findChild<QWidget*>(ad)); // no class of ours carries Q_OBJECT
    }
    ListeKutusu& Yazarlar() { return Bul<ListeKutusu>(QStringLiteral("YazarListesi")); }
    ListeKutusu& Makaleler() { return Bul<ListeKutusu>(QStringLiteral("MakaleListesi")); }
    ZenginMetinKutusu& Metin() { return Bul<ZenginMetinKutusu>(QStringLiteral("MakaleMetniKutusu")); }
    QString Etiket(const QString& ad) { return Bul<QLabel>(ad).text(); }

    DenemeProgramı Program;
    std::unique_ptr<AnaForm> Form;
};

/// Runs the user's part in the modal window that opens; what is still open then is closed.
/// @param aç opens it, and returns when it has closed
/// @return whether a window opened
bool PencereAç(const std::function<void()>& aç, const std::function<void(QDialog&)>& kullanıcı);

/// Types letters as a keyboard does; Qt's own helper knows ASCII only.
void Yaz(QWidget& kontrol, const QString& metin);

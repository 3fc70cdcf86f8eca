// The process that tests kill, or that keeps a library locked while they try to open it. It reports each
// step on its standard output in one write, which outlives the process.
//
//   acilis_sureci ac KLASÖR             the start sequence: "hazır", "kopya" for each block that is copied
//                                       beside the library to replace it, "açık"
//   acilis_sureci yaz KLASÖR TOHUM      adds, changes and deletes until killed: "hazır", then before each
//                                       change "önce NO DAMGA" (DAMGA is - for a deletion), "sonra" after it
//   acilis_sureci gunluksuz-yaz ...     the same without a journal, so that a kill does damage
//   acilis_sureci klasor-kilidi KLASÖR  holds the lock until its standard input ends
//   acilis_sureci dosya-kilidi KLASÖR YER BOY   the same for these bytes of the library file
#include "DenemeKitaplığı.h"

#include "store/Bağlantı.h"

#include <QFile>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr int MakaleSayısı = 24;
constexpr int UzunBoy = 200'000;
constexpr int KısaBoy = 2'000;
constexpr int AzSayfa = 8; // so little that most changes write pages before they are committed

void bildir(const QByteArray& satır)
{
    const QByteArray baytlar = satır + '\n';
    if (write(STDOUT_FILENO, baytlar.constData(), size_t(baytlar.size())) != baytlar.size())
        _exit(3);
}

void aç(const QString& klasör)
{
    bildir("hazır");
    const QString ara = KitaplıkYolu(klasör, KitaplıkDosyaları::Veritabanı) + u'~';
    const Açılış açılış(klasör, [&ara] {
        if (QFile::exists(ara))
            bildir("kopya");
    });
    bildir("açık");
}

class Yazıcı
{
public:
    Yazıcı(const QString& klasör, quint32 tohum)
        : rastgele_(tohum), harfler_(UzunMetin(int(tohum), 2 * UzunBoy)),
          bağlantı_(DosyaBağlantısı(klasör, AzSayfa))
    {
    }
    Bağlantı& Kitaplık() { return *bağlantı_; }

    [[noreturn]] void Yaz()
    {
        bildir("hazır");
        for (;;) {
            const int no = rastgele_.bounded(MakaleSayısı);
            Recordset kayıt(
                bağlantı_, QStringLiteral("SELECT * FROM Makaleler WHERE MakaleBasligi='MAKALE %1'").arg(no));
            if (!kayıt.Eof() && rastgele_.bounded(3) == 0)
                sil(kayıt, no);
            else
                doldur(kayıt, no);
        }
    }

private:
    void sil(Recordset& kayıt, int no)
    {
        bildir("önce " + QByteArray::number(no) + " -");
        kayıt.Delete();
        bildir("sonra");
    }
    void doldur(Recordset& kayıt, int no)
    {
        const int boy = rastgele_.bounded(rastgele_.bounded(4) == 0 ? KısaBoy : UzunBoy);
        const QString metin = DamgalıMetin(harfler_.mid(rastgele_.bounded(UzunBoy), boy));
        const QString damga = MetninDamgası(metin);
        bildir("önce " + QByteArray::number(no) + ' ' + damga.toLatin1());
        kayıt.Eof() ? kayıt.AddNew() : kayıt.Edit();
        kayıt.Fields(u"YazarAdi").Value(QStringLiteral("YAZAR %1").arg(damga.left(1)));
        kayıt.Fields(u"MakaleBasligi").Value(QStringLiteral("MAKALE %1").arg(no));
        kayıt.Fields(u"YayimTarihi").Value(damga);
        kayıt.Fields(u"MakaleMetni").Value(metin);
        kayıt.Update();
        bildir("sonra");
    }

    QRandomGenerator rastgele_;
    QString harfler_;
    std::shared_ptr<Bağlantı> bağlantı_;
};

void girdiBitinceyeKadarBekle()
{
    bildir("hazır");
    char bayt = 0;
    while (read(STDIN_FILENO, &bayt, 1) > 0) {
    }
}

int kilitle(const QString& klasör)
{
    const int no = open(QFile::encodeName(klasör).constData(), O_RDONLY | O_DIRECTORY);
    if (flock(no, LOCK_EX | LOCK_NB) != 0)
        return 2;
    girdiBitinceyeKadarBekle();
    return 0;
}

int kilitle(const QString& klasör, off_t yer, off_t boy)
{
    const QString yol = KitaplıkYolu(klasör, KitaplıkDosyaları::Veritabanı);
    const int no = open(QFile::encodeName(yol).constData(), O_RDWR);
    struct flock kilit = {};
    kilit.l_type = F_WRLCK;
    kilit.l_whence = SEEK_SET;
    kilit.l_start = yer;
    kilit.l_len = boy;
    if (fcntl(no, F_SETLK, &kilit) != 0)
        return 2;
    girdiBitinceyeKadarBekle();
    return 0;
}

int çalış(const QStringList& sözler)
{
    const QString& kip = sözler[0];
    const QString& klasör = sözler[1];
    if (kip == QLatin1String("ac")) {
        aç(klasör);
        return 0;
    }
    if (kip == QLatin1String("klasor-kilidi"))
        return kilitle(klasör);
    if (kip == QLatin1String("dosya-kilidi"))
        return kilitle(klasör, sözler[2].toLong(), sözler[3].toLong());
    Yazıcı yazıcı(klasör, sözler[2].toUInt());
    if (kip == QLatin1String("gunluksuz-yaz"))
        yazıcı.Kitaplık().Metin("PRAGMA journal_mode=OFF");
    yazıcı.Yaz();
}

} // namespace

int main(int sayı, char** sözler)
{
    QStringList liste;
    for (int i = 1; i < sayı; ++i)
        liste.append(QString::fromUtf8(sözler[i]));
    try {
        return çalış(liste);
    } catch (const std::exception& hata) {
        bildir(hata.what());
        return 1;
    }
}

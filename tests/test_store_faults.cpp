// Each system call on the library's files fails once, in each way, or is the process's last one; and the
// power fails behind each. No article is lost, and what was told as failed can be tried again.
#include "library_fixture.h"
#include "system_calls.h"

#include "store/Bağlantı.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const Makale Eklenen = {u"YENİ YAZAR"_s, u"EKLENEN"_s, UzunMetin(1, 60'000), u"Muş"_s, {}};
constexpr size_t Kesim = 512;           // bytes that a disk writes as a whole
constexpr int KısaBiçimdeDenenen = 8;   // calls of each row; all with BELGENAR_HEPSI
constexpr int KısaBiçimdeElektrik = 16; // states of each row

bool hepsi()
{
    return qEnvironmentVariableIsSet("BELGENAR_HEPSI");
}

enum class Arıza
{
    Yok,
    DiskHatası,
    DiskDolu,
    İzinYok,
    YarımYazma,
    Ölüm,
    YarımYazıpÖlme
};

QString mde(const QString& klasör)
{
    return klasör + DosyaAdları::Kitaplık.toString();
}

Recordset kayıt(const Database& kitaplık, const QString& başlık)
{
    return kitaplık.OpenRecordset(u"SELECT * FROM [Makaleler] WHERE [MakaleBasligi]='%1'"_s.arg(başlık));
}

/// What is done to a library. What comes out of it is known beforehand.
struct Eylem
{
    const char* Ad;
    std::function<void(const QString& klasör)> Hazırla; ///< the folder as it is before
    bool Oturumda;                                      ///< whether a session is open meanwhile
    std::function<void(Oturum&, const QString& klasör)> Yap;
    std::function<void(QList<Makale>&)> Beklenen; ///< what it makes of the articles
};

void düzgünKapat(Oturum& oturum)
{
    oturum.Kapat({{}, -1, 0});
}

/// Leaves free pages, and a seal.
void değişmişKapat(const QString& klasör)
{
    Açılış oturum(klasör);
    kayıt(*oturum.Veritabanı, u"UZUN"_s).Delete();
    düzgünKapat(oturum);
}

/// A file longer than its library, and the journal that tells why.
void çökmüşBırak(const QString& klasör)
{
    const pid_t no = fork();
    if (no == 0) {
        const Database kitaplık(
            DosyaBağlantısı(klasör, 4)); // so few pages that they are written before the end
        try {
            kitaplık.TekİşlemdeYap([&] {
                Ekle(kitaplık, {Eklenen, Eklenen});
                _exit(0);
            });
        } catch (...) {
        }
        _exit(1);
    }
    int durum = 0;
    waitpid(no, &durum, 0);
    if (durum != 0 || !QFile::exists(mde(klasör) + u"-journal"_s))
        qFatal("no journal was left behind");
}

const auto Başlatma = [](Oturum& oturum, const QString& klasör) { oturum.Aç(klasör); };
const auto Hazır = [](const QString& klasör) { Açılış{klasör}; };
const auto Aynı = [](QList<Makale>&) {};
const auto Eksik = [](QList<Makale>& makaleler) { makaleler.removeLast(); };

const std::array Eylemler = {
    Eylem{"start, as compacted", Hazır, false, Başlatma, Aynı},
    Eylem{"start, changed", değişmişKapat, false, Başlatma, Aynı},
    Eylem{"start, after a crash", çökmüşBırak, false, Başlatma, Aynı},
    Eylem{"add", Hazır, true, [](Oturum& o, const QString&) { Ekle(*o.Veritabanı, {Eklenen}); },
          [](QList<Makale>& makaleler) { makaleler.append(Eklenen); }},
    Eylem{"edit", Hazır, true,
          [](Oturum& o, const QString&) {
              Recordset r = kayıt(*o.Veritabanı, u"UZUN"_s);
              r.Edit();
              r.Fields(u"MakaleMetni").Value(Eklenen.Metin);
              r.Update();
          },
          [](QList<Makale>& makaleler) { makaleler.last().Metin = Eklenen.Metin; }},
    Eylem{"delete", Hazır, true,
          [](Oturum& o, const QString&) {
              Recordset r = kayıt(*o.Veritabanı, u"UZUN"_s);
              if (!r.Eof())
                  r.Delete();
          },
          Eksik},
    Eylem{"end", [](const QString&) {}, true,
          [](Oturum& o, const QString&) {
              Ekle(*o.Veritabanı, {Eklenen});
              düzgünKapat(o);
          },
          [](QList<Makale>& makaleler) { makaleler.append(Eklenen); }},
};

/// Shared with the processes in which the calls fail.
struct Sonuç
{
    long Çağrılar = 0;
    bool Oldu = false, Yinelendi = false;
};

/// Has the n-th call fail.
class Bozucu
{
public:
    Bozucu(Arıza arıza, long sıra, Sonuç& sonuç) : arıza_(arıza), sıra_(sıra), sonuç_(sonuç)
    {
        ÇağrıGözcüsü = [this](SistemÇağrısı& çağrı) { return ++sonuç_.Çağrılar == sıra_ ? boz(çağrı) : 0; };
    }
    ~Bozucu() { ÇağrıGözcüsü = nullptr; }
    Bozucu(const Bozucu&) = delete;
    Bozucu& operator=(const Bozucu&) = delete;

private:
    int boz(SistemÇağrısı& çağrı) const
    {
        const bool yazma = çağrı.Tür == ÇağrıTürü::Yazma || çağrı.Tür == ÇağrıTürü::Kopyalama;
        switch (arıza_) {
        case Arıza::Yok:
            return 0;
        case Arıza::DiskHatası:
            return EIO;
        case Arıza::DiskDolu:
            return yazma || çağrı.Tür == ÇağrıTürü::Açma ? ENOSPC : 0;
        case Arıza::İzinYok:
            return EACCES;
        case Arıza::YarımYazma:
            çağrı.Boy -= çağrı.Boy / 2;
            return 0;
        case Arıza::YarımYazıpÖlme:
            if (çağrı.Tür == ÇağrıTürü::Yazma) {
                const QByteArray yarısı(static_cast<const char*>(çağrı.Baytlar), qsizetype(çağrı.Boy / 2));
                QFile dosya(QFile::decodeName((GözlenenKlasör + '/' + çağrı.Yol).c_str()));
                ÇağrıGözcüsü = nullptr;
                if (dosya.open(QIODevice::ReadWrite) && dosya.seek(çağrı.Yer))
                    dosya.write(yarısı);
                dosya.close();
            }
            [[fallthrough]];
        case Arıza::Ölüm:
            kill(getpid(), SIGKILL);
        }
        return 0;
    }

    Arıza arıza_;
    long sıra_;
    Sonuç& sonuç_;
};

/// What writes to the disk, one after the other.
struct Kayıt
{
    SistemÇağrısı Çağrı;
    QByteArray Baytlar;
};

/// A folder on a disk that keeps only what was synced for sure.
class Disk
{
public:
    explicit Disk(const QMap<QString, QByteArray>& dosyalar)
    {
        for (auto i = dosyalar.cbegin(); i != dosyalar.cend(); ++i)
            adlar_[i.key().toStdString()] = yeni(i.value());
        kalıcıAdlar_ = adlar_;
    }

    void Yap(const Kayıt& kayıt)
    {
        const SistemÇağrısı& çağrı = kayıt.Çağrı;
        switch (çağrı.Tür) {
        case ÇağrıTürü::Açma:
            if (adlar_.count(çağrı.Yol) == 0)
                adDeğişir([&] { adlar_[çağrı.Yol] = yeni({}); });
            else if (çağrı.Bayraklar & O_TRUNC)
                düğümü(çağrı.Yol).Bekleyenler.push_back({{.Tür = ÇağrıTürü::Kesme}, {}});
            break;
        case ÇağrıTürü::Yazma:
        case ÇağrıTürü::Kesme:
            düğümü(çağrı.Yol).Bekleyenler.push_back(kayıt);
            break;
        case ÇağrıTürü::Eşitleme:
            if (çağrı.Klasör) {
                kalıcıAdlar_ = adlar_;
                bekleyenAdlar_.clear();
            } else {
                Düğüm& düğüm = düğümü(çağrı.Yol);
                for (const Kayıt& bekleyen : std::exchange(düğüm.Bekleyenler, {}))
                    uygula(düğüm.Kalıcı, bekleyen);
            }
            break;
        case ÇağrıTürü::Adlandırma:
            adDeğişir([&] {
                adlar_[çağrı.YeniYol] = adlar_.at(çağrı.Yol);
                adlar_.erase(çağrı.Yol);
            });
            break;
        case ÇağrıTürü::Değişme:
            adDeğişir([&] { std::swap(adlar_.at(çağrı.Yol), adlar_.at(çağrı.YeniYol)); });
            break;
        case ÇağrıTürü::Silme:
            adDeğişir([&] { adlar_.erase(çağrı.Yol); });
            break;
        default:
            break;
        }
    }

    /// The files as they may be after the power has failed: of the writes that nobody waited for all, none,
    /// or some are there, of the last one of each file a part; of the names as many as came first.
    /// @param pay of them in percent, below 0 drawn for each file
    QMap<QString, QByteArray> Kalan(int pay, QRandomGenerator& rastgele) const
    {
        const auto payı = [&] { return pay < 0 ? rastgele.bounded(101) : pay; };
        const qsizetype adSayısı = qsizetype(bekleyenAdlar_.size()) * payı() / 100;
        const auto& adlar = adSayısı == 0 ? kalıcıAdlar_ : bekleyenAdlar_[std::size_t(adSayısı) - 1];
        QMap<QString, QByteArray> dosyalar;
        for (const auto& [ad, no] : adlar) {
            const Düğüm& düğüm = düğümler_[std::size_t(no)];
            QByteArray baytlar = düğüm.Kalıcı;
            const int olan = payı();
            for (const Kayıt& bekleyen : düğüm.Bekleyenler) {
                if (rastgele.bounded(100) >= olan)
                    continue;
                Kayıt yarım = bekleyen;
                if (pay < 0 && rastgele.bounded(4) == 0)
                    yarım.Baytlar.truncate(yarım.Baytlar.size() / 2 / qsizetype(Kesim) * qsizetype(Kesim));
                uygula(baytlar, yarım);
            }
            dosyalar.insert(QString::fromStdString(ad), baytlar);
        }
        return dosyalar;
    }

private:
    using Adlar = std::map<std::string, int>;
    struct Düğüm
    {
        QByteArray Kalıcı;
        std::vector<Kayıt> Bekleyenler;
    };

    int yeni(const QByteArray& baytlar)
    {
        düğümler_.push_back({baytlar, {}});
        return int(düğümler_.size()) - 1;
    }
    Düğüm& düğümü(const std::string& ad) { return düğümler_[std::size_t(adlar_.at(ad))]; }
    template<class İş> void adDeğişir(İş&& iş)
    {
        iş();
        bekleyenAdlar_.push_back(adlar_);
    }
    static void uygula(QByteArray& baytlar, const Kayıt& kayıt)
    {
        const qsizetype yer = kayıt.Çağrı.Yer;
        if (kayıt.Çağrı.Tür == ÇağrıTürü::Kesme)
            return baytlar.resize(yer);
        if (baytlar.size() < yer + kayıt.Baytlar.size())
            baytlar.append(yer + kayıt.Baytlar.size() - baytlar.size(), '\0');
        baytlar.replace(yer, kayıt.Baytlar.size(), kayıt.Baytlar);
    }

    std::vector<Düğüm> düğümler_;
    Adlar adlar_, kalıcıAdlar_;
    std::vector<Adlar> bekleyenAdlar_; // after each change that nobody waited for
};

} // namespace

class TestStoreFaults : public QObject
{
    Q_OBJECT
    QTemporaryDir ayarlar_, geçici_;
    QString klasör_ = geçici_.path() + u'/';
    Sonuç& sonuç_ = *static_cast<Sonuç*>(
        mmap(nullptr, sizeof(Sonuç), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    QList<Makale> önce_, sonra_;
    QMap<QString, QByteArray> dosyalar_;

    void yerineKoy(const QMap<QString, QByteArray>& dosyalar) const
    {
        for (const QString& ad : KlasörOku(klasör_).keys())
            QFile::remove(klasör_ + ad);
        for (auto i = dosyalar.cbegin(); i != dosyalar.cend(); ++i)
            DosyaYaz(klasör_ + i.key(), i.value());
    }
    void hazırla(const Eylem& eylem)
    {
        yerineKoy({});
        QList<Makale> makaleler = ÖrnekMakaleler().mid(0, 15);
        makaleler.append({u"UZUN YAZAR"_s, u"UZUN"_s, UzunMetin(2, 100'000), {}, {}});
        {
            const DenemeKitaplığı kitaplık(makaleler);
            yerineKoy(KlasörOku(kitaplık.Klasör()));
        }
        eylem.Hazırla(klasör_);
        dosyalar_ = KlasörOku(klasör_);
        önce_ = Makaleler(*Açılış(klasör_).Veritabanı);
        sonra_ = önce_;
        eylem.Beklenen(sonra_);
    }
    /// In a process of its own. @return whether that was killed
    bool dene(const Eylem& eylem, Arıza arıza, long sıra, const QByteArray& günlükKipi = {})
    {
        yerineKoy(dosyalar_);
        sonuç_ = {};
        const pid_t no = fork();
        if (no == 0) {
            Oturum oturum;
            if (eylem.Oturumda)
                oturum.SahipOlarakAç(klasör_, Oturum::Erişim::Yazma);
            if (!günlükKipi.isEmpty())
                oturum.Veritabanı->Dosya().Metin("PRAGMA journal_mode=" + günlükKipi);
            const auto yap = [&] { return HataNumarası([&] { eylem.Yap(oturum, klasör_); }) == 0; };
            {
                const Bozucu bozucu(arıza, sıra, sonuç_);
                sonuç_.Oldu = yap();
            }
            sonuç_.Yinelendi = sonuç_.Oldu || yap();
            _exit(0);
        }
        int durum = 0;
        waitpid(no, &durum, 0);
        return WIFSIGNALED(durum);
    }
    /// What is wrong with the library that is left.
    QString kusur(bool kesin, bool eskisiOlur)
    {
        QList<Makale> bulunan;
        const int hata = HataNumarası([&] { bulunan = Makaleler(*Açılış(klasör_).Veritabanı); });
        if (hata != 0)
            return u"error %1"_s.arg(hata);
        if (bulunan == sonra_ || (bulunan == önce_ && eskisiOlur))
            return {};
        return kesin ? u"a change is lost or doubled"_s : u"an article is lost"_s;
    }
    QString dene(const Eylem& eylem, Arıza arıza, long sıra, int& ölen)
    {
        const bool öldü = dene(eylem, arıza, sıra);
        ölen += öldü;
        if (!öldü && !sonuç_.Yinelendi)
            return u"can't be tried again"_s;
        return kusur(!öldü, öldü);
    }
    /// Writes down what the action does to the files.
    std::vector<Kayıt> kaydet(const Eylem& eylem)
    {
        yerineKoy(dosyalar_);
        Oturum oturum;
        if (eylem.Oturumda)
            oturum.SahipOlarakAç(klasör_, Oturum::Erişim::Yazma);
        std::vector<Kayıt> kayıtlar;
        ÇağrıGözcüsü = [&](SistemÇağrısı& çağrı) {
            if (çağrı.Tür == ÇağrıTürü::Kopyalama)
                return EXDEV; // what is read and written is seen here
            const bool yaratma = (çağrı.Bayraklar & (O_CREAT | O_TRUNC)) != 0;
            if (çağrı.Tür == ÇağrıTürü::Yazma)
                kayıtlar.push_back(
                    {çağrı, QByteArray(static_cast<const char*>(çağrı.Baytlar), qsizetype(çağrı.Boy))});
            else if (çağrı.Tür != ÇağrıTürü::Açma || yaratma)
                kayıtlar.push_back({çağrı, {}});
            return 0;
        };
        eylem.Yap(oturum, klasör_);
        ÇağrıGözcüsü = nullptr;
        return kayıtlar;
    }
    static void satırlar()
    {
        QTest::addColumn<int>("sıra");
        for (int i = 0; i < int(Eylemler.size()); ++i)
            QTest::newRow(Eylemler[std::size_t(i)].Ad) << i;
    }

private slots:
    void initTestCase()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(ayarlar_.path()));
        GözlenenKlasör = QFile::encodeName(geçici_.path()).toStdString();
    }
    void cleanup() { ÇağrıGözcüsü = nullptr; }

    void everyCall_data() { satırlar(); }
    void everyCall()
    {
        QFETCH(const int, sıra);
        const Eylem& eylem = Eylemler[std::size_t(sıra)];
        hazırla(eylem);
        dene(eylem, Arıza::Yok, 0);
        QVERIFY(sonuç_.Oldu);
        const long çağrılar = sonuç_.Çağrılar;
        const long adım = hepsi() ? 1 : std::max<long>(1, çağrılar / KısaBiçimdeDenenen);
        int denenen = 0, ölen = 0, olmayan = 0;
        QStringList kusurlar;
        for (const Arıza arıza : {Arıza::DiskHatası, Arıza::DiskDolu, Arıza::İzinYok, Arıza::YarımYazma,
                                  Arıza::Ölüm, Arıza::YarımYazıpÖlme}) {
            const long ilk = 1 + QRandomGenerator::global()->bounded(int(adım));
            for (long çağrı = ilk; çağrı <= çağrılar; çağrı += adım, ++denenen) {
                const QString kusur = dene(eylem, arıza, çağrı, ölen);
                olmayan += !sonuç_.Oldu;
                if (!kusur.isEmpty())
                    kusurlar.append(u"fault %1 at call %2: %3"_s.arg(int(arıza)).arg(çağrı).arg(kusur));
            }
        }
        qInfo("%ld calls, %d faults, %d refused, %d killed, %lld lost", çağrılar, denenen, olmayan - ölen,
              ölen, qlonglong(kusurlar.size()));
        QVERIFY2(kusurlar.isEmpty(), qPrintable(kusurlar.mid(0, 20).join(u'\n')));
        QVERIFY(ölen > 0 && (olmayan > ölen || !hepsi())); // few calls of an end are told of as failed
    }

    void powerFailure_data() { satırlar(); }
    void powerFailure()
    {
        QFETCH(const int, sıra);
        const Eylem& eylem = Eylemler[std::size_t(sıra)];
        hazırla(eylem);
        const std::vector<Kayıt> kayıtlar = kaydet(eylem);
        const quint32 tohum = QRandomGenerator::global()->generate();
        QRandomGenerator rastgele(tohum);
        Disk disk(dosyalar_);
        int haller = 0;
        QStringList kusurlar;
        const std::size_t adım =
            hepsi() ? 1 : std::max<std::size_t>(1, kayıtlar.size() * 4 / KısaBiçimdeElektrik);
        for (std::size_t i = 0; i < kayıtlar.size(); ++i) {
            disk.Yap(kayıtlar[i]);
            const bool bitti = i + 1 == kayıtlar.size();
            if (!bitti && i % adım != 0)
                continue;
            for (const int pay : {0, 100, -1, -1}) {
                yerineKoy(disk.Kalan(pay, rastgele));
                ++haller;
                if (const QString kusur = this->kusur(bitti, !bitti); !kusur.isEmpty())
                    kusurlar.append(
                        u"after %1 of %2, %3 %: %4"_s.arg(i + 1).arg(kayıtlar.size()).arg(pay).arg(kusur));
            }
        }
        qInfo("seed %u: %zu calls, %d states, %lld lost", tohum, kayıtlar.size(), haller,
              qlonglong(kusurlar.size()));
        QVERIFY2(kusurlar.isEmpty(), qPrintable(kusurlar.mid(0, 20).join(u'\n')));
    }

    // Were nothing found here, the runs above would prove nothing.
    void withoutJournal()
    {
        const Eylem& eylem = Eylemler[4];
        hazırla(eylem);
        QString kusur;
        dene(eylem, Arıza::Yok, 0, "OFF");
        const long çağrılar = sonuç_.Çağrılar;
        for (long çağrı = 1; çağrı <= çağrılar && kusur.isEmpty(); ++çağrı) {
            dene(eylem, Arıza::Ölüm, çağrı, "OFF");
            kusur = this->kusur(false, true);
        }
        QVERIFY(!kusur.isEmpty());
    }
    void withoutSyncs()
    {
        const Eylem& eylem = Eylemler[3];
        hazırla(eylem);
        const std::vector<Kayıt> kayıtlar = kaydet(eylem);
        QRandomGenerator rastgele(1);
        Disk disk(dosyalar_);
        bool kayıp = false;
        for (const Kayıt& kayıt : kayıtlar) {
            if (kayıt.Çağrı.Tür == ÇağrıTürü::Eşitleme && !kayıt.Çağrı.Klasör)
                continue;
            disk.Yap(kayıt);
            for (int i = 0; i < 2 && !kayıp; ++i) {
                yerineKoy(disk.Kalan(-1, rastgele));
                kayıp = !kusur(false, true).isEmpty();
            }
        }
        QVERIFY(kayıp);
    }
};

QTEST_GUILESS_MAIN(TestStoreFaults)
#include "test_store_faults.moc"

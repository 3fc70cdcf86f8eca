#include "store/Bağlantı.h"

#include "store/BenzerDeseni.h"
#include "store/DosyaTanıma.h"
#include "store/SayfaŞifresi.h"
#include "store/SistemHatası.h"
#include "store/Utf8Metni.h"
#include "text/TürkçeSıralama.h"

#define SQLITE_HAS_CODEC
#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int KilitBekleme = 500;      // ms that another process's short lock is waited for
constexpr int İlerlemeAdımı = 500;     // machine steps between two looks at the clock
constexpr qint64 BildirimAralığı = 20; // ms

qint64 şimdi()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

int sıralama(void*, int na, const void* a, int nb, const void* b)
{
    return TürkçeKarşılaştır({static_cast<const char*>(a), static_cast<std::size_t>(na)},
                             {static_cast<const char*>(b), static_cast<std::size_t>(nb)});
}

std::string_view değerBaytları(sqlite3_value* değer)
{
    const auto* metin = reinterpret_cast<const char*>(sqlite3_value_text(değer));
    return metin ? std::string_view(metin, static_cast<std::size_t>(sqlite3_value_bytes(değer)))
                 : std::string_view();
}

// text LIKE pattern; the pattern is compiled once a statement.
void benzer(sqlite3_context* bağlam, int, sqlite3_value** değerler)
{
    if (sqlite3_value_type(değerler[0]) == SQLITE_NULL || sqlite3_value_type(değerler[1]) == SQLITE_NULL)
        return;
    try {
        auto* desen = static_cast<BenzerDeseni*>(sqlite3_get_auxdata(bağlam, 0));
        std::unique_ptr<BenzerDeseni> yeni;
        if (!desen) {
            yeni = std::make_unique<BenzerDeseni>(Utf8Metni(değerBaytları(değerler[0])));
            desen = yeni.get();
        }
        const std::string_view metin = değerBaytları(değerler[1]);
        if (metin.find('\0') != std::string_view::npos) // what a damaged page deciphers to
            sqlite3_result_error_code(bağlam, SQLITE_CORRUPT);
        else
            sqlite3_result_int(bağlam, desen->Uyar(metin) ? 1 : 0);
        if (yeni)
            sqlite3_set_auxdata(bağlam, 0, yeni.release(),
                                [](void* eski) { delete static_cast<BenzerDeseni*>(eski); });
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(bağlam);
    }
}

QByteArray anahtarMetni(const Anahtar& anahtar)
{
    return anahtar.tür == AnahtarTürü::HamAnahtar ? QByteArray("x'" + anahtar.değer.toHex() + "'")
                                                  : anahtar.değer;
}

// SQLite calls a failed read damage and forgets why a write failed before its caller can ask: what the
// system said is noted on the way. One thread works on libraries.
int sonErişimHatası = 0; // errno; 0 for none since the statement began
ssize_t (*asılOku)(int, void*, std::size_t, off_t) = nullptr;
ssize_t (*asılYaz)(int, const void*, std::size_t, off_t) = nullptr;

template<class Sonuç> Sonuç hatayıAnımsa(Sonuç sonuç)
{
    if (sonuç < 0 && errno != EINTR)
        sonErişimHatası = errno;
    return sonuç;
}

ssize_t oku(int no, void* baytlar, std::size_t boy, off_t yer)
{
    return hatayıAnımsa(asılOku(no, baytlar, boy, yer));
}

ssize_t yaz(int no, const void* baytlar, std::size_t boy, off_t yer)
{
    return hatayıAnımsa(asılYaz(no, baytlar, boy, yer));
}

/// Where this build of SQLite has neither call, nothing is noted.
template<class Çağrı> void arayaGir(Çağrı& asıl, Çağrı yerine, std::initializer_list<const char*> adlar)
{
    sqlite3_vfs* const vfs = sqlite3_vfs_find(nullptr);
    for (const char* ad : adlar) {
        if (const sqlite3_syscall_ptr eski = vfs->xGetSystemCall(vfs, ad); eski && !asıl) {
            asıl = reinterpret_cast<Çağrı>(eski);
            vfs->xSetSystemCall(vfs, ad, reinterpret_cast<sqlite3_syscall_ptr>(yerine));
        }
    }
}

void erişimleriİzle()
{
    static const bool izleniyor = [] {
        arayaGir(asılOku, &oku, {"pread64", "pread"});
        arayaGir(asılYaz, &yaz, {"pwrite64", "pwrite"});
        return true;
    }();
    Q_UNUSED(izleniyor)
}

/// A missing file is left over from another call: the file itself is open.
HataNo erişimHatası(int sistem)
{
    const HataNo numara = SistemHataNo(sistem, Erişim::Yazma);
    return numara == HataNo::DosyaYok ? HataNo::DiskHatası : numara;
}

/// Why the folder takes no new file. SQLite tries a second time for reading, and has that error only.
int yeniDosyaHatası(const QString& yol)
{
    const QByteArray klasör = QFile::encodeName(QFileInfo(yol).canonicalPath());
    const int no = open(klasör.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (no < 0)
        return errno == EOPNOTSUPP || errno == EISDIR ? EROFS : errno; // these two know no such files
    close(no);
    return EIO; // it takes them by now
}

void varOlmalı(const QString& yol)
{
    struct stat bilgi = {};
    if (stat(QFile::encodeName(yol).constData(), &bilgi) != 0)
        SistemHatasıVer(errno, Erişim::Okuma, yol);
    if (S_ISDIR(bilgi.st_mode))
        throw VeritabanıHatası(HataNo::KitaplıkDeğil, yol);
    if (bilgi.st_size == 0) // SQLite would take it for a new, empty database
        throw VeritabanıHatası(HataNo::DosyaBoş, yol);
}

/// SQLite takes an empty file for a new database; one that it makes itself would be readable for all.
void boşDosyaOluştur(const QString& yol)
{
    const int no =
        open(QFile::encodeName(yol).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (no < 0 && errno == EEXIST)
        throw VeritabanıHatası(HataNo::DosyaVar, yol);
    if (no < 0)
        SistemHatasıVer(errno, Erişim::Yazma, yol);
    close(no);
}

} // namespace

void Bağlantı::Kapatıcı::operator()(sqlite3* db) const noexcept
{
    sqlite3_close_v2(db);
}

void Deyim::Bırakıcı::operator()(sqlite3_stmt* deyim) const noexcept
{
    sqlite3_finalize(deyim);
}

Bağlantı::Bağlantı(const QString& yol, const Anahtar& anahtar, AçmaKipi kip) : yol_(yol)
{
    erişimleriİzle();
    if (kip != AçmaKipi::Oluştur)
        varOlmalı(yol);
    else
        boşDosyaOluştur(yol);

    const int bayraklar = kip == AçmaKipi::Oku ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    sqlite3* db = nullptr;
    const int durum = sqlite3_open_v2(QFile::encodeName(yol).constData(), &db, bayraklar, nullptr);
    db_.reset(db);
    if (durum == SQLITE_CANTOPEN)
        SistemHatasıVer(sqlite3_system_errno(db), kip == AçmaKipi::Oluştur ? Erişim::Yazma : Erişim::Okuma,
                        yol);
    denetle(durum);
    sqlite3_extended_result_codes(db, 1);
    sqlite3_busy_timeout(db, KilitBekleme);
    if (kip == AçmaKipi::OkuYaz && sqlite3_db_readonly(db, "main") == 1)
        throw VeritabanıHatası(HataNo::SaltOkunur, yol);

    anahtarıVer(anahtar);
    denetle(sqlite3_create_collation_v2(db, "TURKCE", SQLITE_UTF8, nullptr, sıralama, nullptr));
    denetle(sqlite3_create_function_v2(db, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, benzer,
                                       nullptr, nullptr, nullptr));

    ilkOkuma();
    if (kip != AçmaKipi::Oluştur && QFileInfo(yol).size() < Sayı("PRAGMA page_count") * SayfaBoyu)
        throw VeritabanıHatası(HataNo::DosyaYarım, yol);
    Çalıştır("PRAGMA synchronous=EXTRA");
    // What was deleted must not stand on a page from which a rescue would bring it back.
    Sayı("PRAGMA secure_delete=ON");
}

Bağlantı::~Bağlantı() = default;

// The first real read: only now the key is tried.
void Bağlantı::ilkOkuma()
{
    constexpr auto sql = "SELECT count(*) FROM sqlite_master";
    int durum = dene(sql);
    if (durum == SQLITE_IOERR_DIR_FSYNC) // what a crash left is rolled back, and its journal gone
        durum = dene(sql);
    switch (durum & 0xff) {
    case SQLITE_OK:
        return;
    case SQLITE_CORRUPT: // the first page deciphers, but promises more pages than there are
    case SQLITE_NOTADB:
    case SQLITE_ERROR:
        if (sonErişimHatası != 0)
            SistemHatasıVer(sonErişimHatası, Erişim::Okuma, yol_);
        throw VeritabanıHatası(
            (durum & 0xff) == SQLITE_CORRUPT ? HataNo::DosyaYarım : OkunamayanDosyaTanısı(yol_), yol_);
    default:
        hataVer(durum, true);
    }
}

int Bağlantı::dene(const char* sql) const
{
    sonErişimHatası = 0;
    return sqlite3_exec(db_.get(), sql, nullptr, nullptr, nullptr);
}

void Bağlantı::anahtarıVer(const Anahtar& anahtar)
{
    if (anahtar.değer.isEmpty()) // would be taken for a file in the clear
        throw VeritabanıHatası(HataNo::ParolaYanlış, yol_);
    const QByteArray tuz = Tuz();
    const bool türetilir = anahtar.tür == AnahtarTürü::Parola && !tuz.isEmpty();
    const QByteArray değer = anahtarMetni(türetilir ? TuzluAnahtar(anahtar.değer, tuz) : anahtar);
    denetle(sqlite3_key(db_.get(), değer.constData(), static_cast<int>(değer.size())));
    sürüm4_ = Metin("PRAGMA cipher_version").startsWith(u'4');
    if (sürüm4_) // the files are version 3's
        Sayı("PRAGMA cipher_compatibility=3");
    Sayı("PRAGMA cipher_page_size=" + QByteArray::number(SayfaBoyu));
    // Sorted texts must not go to a temporary file in the clear.
    Çalıştır("PRAGMA temp_store=MEMORY");
}

QByteArray Bağlantı::Tuz() const
{
    sqlite3_file* dosya = nullptr;
    QByteArray tuz(TuzBoyu, Qt::Uninitialized);
    const int durum = sqlite3_file_control(db_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &dosya);
    const bool okundu = durum == SQLITE_OK && dosya->pMethods &&
                        dosya->pMethods->xRead(dosya, tuz.data(), int(TuzBoyu), 0) == SQLITE_OK;
    return okundu ? tuz : QByteArray();
}

void Bağlantı::hataVer(int durum, bool adımda) const
{
    const QByteArray ileti = sqlite3_errmsg(db_.get());
    switch (durum & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw VeritabanıHatası(HataNo::DosyaKullanımda, yol_);
    case SQLITE_FULL:
        throw VeritabanıHatası(HataNo::DiskDolu, yol_);
    case SQLITE_READONLY:
        throw VeritabanıHatası(HataNo::SaltOkunur, yol_);
    case SQLITE_PERM:
    case SQLITE_AUTH:
        throw VeritabanıHatası(HataNo::İzinYok, yol_);
    case SQLITE_CANTOPEN: // a journal that can't be made
        throw VeritabanıHatası(SistemHataNo(yeniDosyaHatası(yol_), Erişim::Yazma), yol_);
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        if (sonErişimHatası != 0) // it could not be read; what it holds may be whole
            SistemHatasıVer(sonErişimHatası, Erişim::Okuma, yol_);
        throw VeritabanıHatası(HataNo::DosyaBozuk, yol_);
    case SQLITE_TOOBIG:
        throw VeritabanıHatası(HataNo::DeğerÇokUzun, yol_);
    case SQLITE_NOMEM:
        if (adımda && sürüm4_) // what version 4 says of a page that does not decipher
            throw VeritabanıHatası(HataNo::DosyaBozuk, yol_);
        throw std::bad_alloc();
    case SQLITE_INTERRUPT:
        throw VeritabanıHatası(HataNo::İşlemDurduruldu);
    case SQLITE_IOERR:
        if (durum == SQLITE_IOERR_SHORT_READ)
            throw VeritabanıHatası(HataNo::DosyaYarım, yol_);
        throw VeritabanıHatası(
            erişimHatası(sonErişimHatası != 0 ? sonErişimHatası : sqlite3_system_errno(db_.get())), yol_);
    default:
        break;
    }
    if (ileti.startsWith("no such table"))
        throw VeritabanıHatası(HataNo::TabloYok, QString::fromUtf8(ileti.mid(15)));
    if (ileti.startsWith("no such column"))
        throw VeritabanıHatası(HataNo::AlanYok, QString::fromUtf8(ileti.mid(16)));
    // A page that does not decipher is reported as a plain error while a statement runs.
    if (adımda && ileti == sqlite3_errstr(SQLITE_ERROR))
        throw VeritabanıHatası(HataNo::DosyaBozuk, yol_);
    throw VeritabanıHatası(HataNo::Sözdizimi);
}

void Bağlantı::denetle(int durum) const
{
    if (durum != SQLITE_OK)
        hataVer(durum, false);
}

void Bağlantı::Çalıştır(const QByteArray& sql)
{
    Deyim(*this, sql).Çalıştır();
}

qint64 Bağlantı::Sayı(const QByteArray& sql)
{
    Deyim deyim(*this, sql);
    return deyim.Adım() ? deyim.Sayı(0) : 0;
}

QString Bağlantı::Metin(const QByteArray& sql)
{
    Deyim deyim(*this, sql);
    return deyim.Adım() ? deyim.Metin(0) : QString();
}

void Bağlantı::İliştir(const QString& yol, const Anahtar& anahtar, const QByteArray& ad)
{
    Deyim deyim(*this, "ATTACH DATABASE ?1 AS " + ad + " KEY ?2");
    deyim.Bağla(1, yol);
    deyim.Bağla(2, QString::fromUtf8(anahtarMetni(anahtar)));
    deyim.Çalıştır();
    if (sürüm4_)
        Sayı("PRAGMA " + ad + ".cipher_compatibility=3");
    Sayı("PRAGMA " + ad + ".cipher_page_size=" + QByteArray::number(SayfaBoyu));
}

bool Bağlantı::İşlemde() const
{
    return sqlite3_get_autocommit(db_.get()) == 0;
}

// The journal's deletion is the commit. What can fail behind it is the sync of its folder: the next opening
// finds no journal and reads the new state, so telling a failure would have the user do the work twice.
void Bağlantı::Onayla()
{
    const int durum = dene("COMMIT");
    if (durum != SQLITE_OK && !(durum == SQLITE_IOERR_DIR_FSYNC && günlükGitti()))
        hataVer(durum, true);
}

bool Bağlantı::günlükGitti() const
{
    struct stat bilgi = {};
    const QByteArray günlük = QByteArray(sqlite3_db_filename(db_.get(), "main")) + "-journal";
    return lstat(günlük.constData(), &bilgi) != 0 && errno == ENOENT;
}

qint64 Bağlantı::SonKimlik() const
{
    return sqlite3_last_insert_rowid(db_.get());
}

qint64 Bağlantı::DeğişenSatır() const
{
    return sqlite3_changes(db_.get());
}

qint64 Bağlantı::ToplamDeğişim() const
{
    return sqlite3_total_changes(db_.get());
}

void Bağlantı::İlerlemeAta(const std::function<void()>& bildir)
{
    SürdürmeAta(!bildir ? std::function<bool()>() : [bildir] {
        bildir();
        return true;
    });
}

void Bağlantı::SürdürmeAta(std::function<bool()> sürsünMü)
{
    sürsünMü_ = std::move(sürsünMü);
    sqlite3_progress_handler(db_.get(), sürsünMü_ ? İlerlemeAdımı : 0, &Bağlantı::ilerleme, this);
}

int Bağlantı::ilerleme(void* bağlantı)
{
    auto* kendi = static_cast<Bağlantı*>(bağlantı);
    if (şimdi() - kendi->sonBildirim_ < BildirimAralığı)
        return 0;
    const bool sürsün = kendi->sürsünMü_();
    kendi->sonBildirim_ = şimdi();
    return sürsün ? 0 : 1;
}

void Bağlantı::ÖnbelleğiBoşalt()
{
    constexpr auto boşalt = "PRAGMA shrink_memory";
    Sayı(boşalt);
    dene("SELECT count(*) FROM sqlite_master"); // may fail of what was read before, and is read in vain
    Sayı(boşalt);
}

void Bağlantı::SayfalarıTabloSay(const std::vector<std::pair<qint64, QByteArray>>& tablolar)
{
    // SQLite's own means for tools that look at a file's parts: while it is on, a table that is created
    // is taken to be there already, at that page.
    const auto kip = [this](int açık, qint64 kök) {
        sqlite3_test_control(SQLITE_TESTCTRL_IMPOSTER, db_.get(), "main", açık, static_cast<int>(kök));
    };
    kip(0, 1);                                  // forgets all tables
    Sayı("SELECT count(*) FROM sqlite_master"); // and this learns the file's own ones again
    for (const auto& [sayfa, sql] : tablolar) {
        kip(1, sayfa);
        const int durum = sqlite3_exec(db_.get(), sql.constData(), nullptr, nullptr, nullptr);
        kip(0, 0);
        denetle(durum);
    }
}

Deyim::Deyim(Bağlantı& bağlantı, const QByteArray& sql) : bağlantı_(bağlantı)
{
    sqlite3_stmt* deyim = nullptr;
    const char* kalan = nullptr;
    const int durum =
        sqlite3_prepare_v2(bağlantı.db_.get(), sql.constData(), static_cast<int>(sql.size()), &deyim, &kalan);
    deyim_.reset(deyim);
    bağlantı.denetle(durum);
    const char* const son = sql.constData() + sql.size();
    while (kalan < son && (*kalan == ' ' || *kalan == ';' || *kalan == '\n'))
        ++kalan;
    if (!deyim || kalan != son)
        throw VeritabanıHatası(HataNo::Sözdizimi);
}

Deyim& Deyim::Bağla(int sıra, qint64 sayı)
{
    bağlantı_.denetle(sqlite3_bind_int64(deyim_.get(), sıra, sayı));
    return *this;
}

Deyim& Deyim::Bağla(int sıra, QStringView metin)
{
    const QByteArray utf8 = metin.toUtf8();
    bağlantı_.denetle(sqlite3_bind_text64(deyim_.get(), sıra, utf8.constData(),
                                          static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT,
                                          SQLITE_UTF8));
    return *this;
}

Deyim& Deyim::Bağla(int sıra, const QByteArray& baytlar)
{
    bağlantı_.denetle(sqlite3_bind_blob64(deyim_.get(), sıra, baytlar.constData(),
                                          static_cast<sqlite3_uint64>(baytlar.size()), SQLITE_TRANSIENT));
    return *this;
}

Deyim& Deyim::BağlaYazı(int sıra, std::string_view utf8)
{
    const char* const baytlar = utf8.data() ? utf8.data() : ""; // a null pointer would be NULL
    bağlantı_.denetle(
        sqlite3_bind_text64(deyim_.get(), sıra, baytlar, utf8.size(), SQLITE_STATIC, SQLITE_UTF8));
    return *this;
}

bool Deyim::Adım()
{
    sonErişimHatası = 0;
    const int durum = sqlite3_step(deyim_.get());
    if (durum == SQLITE_ROW)
        return true;
    if (durum == SQLITE_DONE)
        return false;
    bağlantı_.hataVer(durum, true);
}

void Deyim::Çalıştır()
{
    while (Adım()) {
    }
    Sıfırla();
}

void Deyim::Sıfırla()
{
    sqlite3_reset(deyim_.get());
    sqlite3_clear_bindings(deyim_.get());
}

qint64 Deyim::Sayı(int sütun) const
{
    return sqlite3_column_int64(deyim_.get(), sütun);
}

QString Deyim::Metin(int sütun) const
{
    return Utf8Metni(Yazı(sütun));
}

std::string_view Deyim::Yazı(int sütun) const
{
    const std::string_view utf8 = Baytlar(sütun);
    if (utf8.find('\0') != std::string_view::npos)
        throw VeritabanıHatası(HataNo::DosyaBozuk, bağlantı_.yol_);
    return utf8;
}

std::string_view Deyim::Baytlar(int sütun) const
{
    if (sqlite3_column_type(deyim_.get(), sütun) == SQLITE_NULL)
        return {};
    const auto* metin = reinterpret_cast<const char*>(sqlite3_column_text(deyim_.get(), sütun));
    if (!metin) // the text's pages could not be read; the statement itself reports nothing
        throw VeritabanıHatası(HataNo::DosyaBozuk, bağlantı_.yol_);
    return {metin, static_cast<std::size_t>(sqlite3_column_bytes(deyim_.get(), sütun))};
}

int Deyim::SütunSayısı() const
{
    return sqlite3_column_count(deyim_.get());
}

QString Deyim::SütunAdı(int sütun) const
{
    return QString::fromUtf8(sqlite3_column_name(deyim_.get(), sütun));
}

İşlem::İşlem(Bağlantı& bağlantı) : bağlantı_(bağlantı), açık_(!bağlantı.İşlemde())
{
    if (!açık_)
        return;
    if (bağlantı_.ilkYazma_) {
        bağlantı_.ilkYazma_();
        bağlantı_.ilkYazma_ = {};
    }
    bağlantı_.Çalıştır("BEGIN IMMEDIATE");
}

İşlem::~İşlem()
{
    if (!açık_)
        return;
    try {
        bağlantı_.Çalıştır("ROLLBACK");
    } catch (const std::exception&) {
        // SQLite has rolled back by itself; there is nothing left to undo.
    }
}

void İşlem::Onayla()
{
    if (açık_)
        bağlantı_.Onayla();
    açık_ = false;
}

#include "tools/BelgeListesi.h"

#include "tools/Durdurma.h"

#include <QFile>
#include <QUtf8StringView>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

class Gezgin
{
public:
    explicit Gezgin(const DurdurmaBekçisi& bekçi) : bekçi_(bekçi) {}

    void Gez(const fs::path& klasör)
    {
        struct stat bilgi = {};
        if (stat(klasör.c_str(), &bilgi) != 0 || !görülen_.emplace(bilgi.st_dev, bilgi.st_ino).second)
            return;
        std::error_code hata;
        std::vector<fs::path> içindekiler;
        for (fs::directory_iterator girdi(klasör, hata); !hata && girdi != fs::directory_iterator();
             girdi.increment(hata))
            içindekiler.push_back(girdi->path());
        if (hata)
            ekle(klasör, QStringLiteral("Klasör okunamıyor."));
        std::sort(içindekiler.begin(), içindekiler.end());
        for (const fs::path& yol : içindekiler) {
            bekçi_.Bak();
            if (yol.filename().native().front() != '.')
                bak(yol);
        }
    }

    std::vector<BelgeDosyası> Bulunanlar() { return std::move(bulunanlar_); }

private:
    void bak(const fs::path& yol)
    {
        std::error_code hata;
        if (fs::is_directory(yol, hata))
            Gez(yol);
        else
            ekle(yol, {});
    }

    void ekle(const fs::path& yol, const QString& ret)
    {
        const std::string& baytlar = yol.native();
        const bool utf8 = QUtf8StringView(baytlar.data(), qsizetype(baytlar.size())).isValidUtf8();
        bulunanlar_.push_back({QFile::decodeName(baytlar.c_str()),
                               utf8 ? ret : QStringLiteral("Adında UTF-8 olmayan baytlar var.")});
    }

    const DurdurmaBekçisi& bekçi_;
    std::set<std::pair<dev_t, ino_t>> görülen_; // folders
    std::vector<BelgeDosyası> bulunanlar_;
};

} // namespace

std::vector<BelgeDosyası> BelgeleriListele(const QString& klasör, const DurdurmaBekçisi& bekçi)
{
    Gezgin gezgin(bekçi);
    gezgin.Gez(QFile::encodeName(klasör).toStdString());
    return gezgin.Bulunanlar();
}

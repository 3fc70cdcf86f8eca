#include "store/Recordset.h"

#include "store/Bağlantı.h"
#include "store/Utf8Metni.h"

#include <QByteArrayList>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr auto KısaSütunlarSql =
    "SELECT YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi FROM Makaleler WHERE Kimlik=?1";
constexpr auto MetinSql = "SELECT MakaleMetni FROM Makaleler WHERE Kimlik=?1";
constexpr auto EkleSql = "INSERT INTO Makaleler(YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi, MakaleMetni)"
                         " VALUES(?1, ?2, ?3, ?4, ?5)";
constexpr auto SilSql = "DELETE FROM Makaleler WHERE Kimlik=?1";

/// What follows "SELECT *" when the query begins so, else nothing.
std::optional<QStringView> yıldızdanSonrası(QStringView sql)
{
    constexpr QStringView seç = u"SELECT";
    sql = sql.trimmed();
    if (!sql.startsWith(seç, Qt::CaseInsensitive))
        return {};
    const QStringView kalan = sql.sliced(seç.size()).trimmed();
    if (!kalan.startsWith(u'*'))
        return {};
    return kalan.sliced(1);
}

/// A query that looks into the long texts goes through the table in its own order: through an index it
/// would decipher pages that hold several rows again for each of them.
QString metinTaraması(QStringView kalan)
{
    static const QRegularExpression tablo(
        QStringLiteral("^\\s*FROM\\s+(\\[Makaleler\\]|Makaleler)(?=\\s+(WHERE|ORDER)\\b)"),
        QRegularExpression::CaseInsensitiveOption);
    QString sql = kalan.toString();
    if (const auto uyan = tablo.match(sql);
        uyan.hasMatch() && sql.contains(Tanım(MakaleSütunu::MakaleMetni).ad))
        sql.insert(uyan.capturedEnd(), QStringLiteral(" NOT INDEXED"));
    return sql;
}

void sorguOlmalı(const QString& sql)
{
    if (!QStringView(sql).trimmed().startsWith(u"SELECT", Qt::CaseInsensitive) || sql.contains(QChar(u'\0')))
        throw VeritabanıHatası(HataNo::Sözdizimi);
}

} // namespace

QString Field::Name() const
{
    return kayıtlar_.sütunlar_[static_cast<std::size_t>(sütun_)];
}

QString Field::Value() const
{
    return kayıtlar_.değer(sütun_);
}

void Field::Value(const QString& değer)
{
    kayıtlar_.bekleyenDeğer(sütun_, değer);
}

Recordset::Recordset(std::shared_ptr<Bağlantı> bağlantı, const QString& sorgu)
    : bağlantı_(std::move(bağlantı))
{
    sorguOlmalı(sorgu);
    const QString sql = sorgu.normalized(QString::NormalizationForm_C); // as the values in the library
    if (const auto kalan = yıldızdanSonrası(sql)) {
        değiştirilebilir_ = true;
        for (const SütunTanımı& tanım : MakaleSütunları)
            sütunlar_.push_back(tanım.ad.toString());
        // The title comes along because an index or the sorter holds it anyway; reading it row by row
        // later would decipher the table's pages.
        anahtarlarıOku("SELECT Kimlik, MakaleBasligi" + metinTaraması(*kalan).toUtf8());
    } else {
        değerleriOku(sql.toUtf8());
    }
}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

void Recordset::anahtarlarıOku(const QByteArray& sql)
{
    değişimDamgası_ = bağlantı_->ToplamDeğişim();
    Deyim deyim(*bağlantı_, sql);
    while (deyim.Adım()) {
        kimlikler_.push_back(deyim.Sayı(0));
        metinler_.Ekle(deyim.Yazı(1));
    }
    satırSayısı_ = kimlikler_.size();
}

void Recordset::değerleriOku(const QByteArray& sql)
{
    Deyim deyim(*bağlantı_, sql);
    for (int i = 0; i < deyim.SütunSayısı(); ++i)
        sütunlar_.push_back(deyim.SütunAdı(i));
    for (; deyim.Adım(); ++satırSayısı_) {
        for (int i = 0; i < deyim.SütunSayısı(); ++i)
            metinler_.Ekle(deyim.Yazı(i));
    }
}

Bağlantı& Recordset::açık() const
{
    if (!bağlantı_)
        throw VeritabanıHatası(HataNo::NesneKapalı);
    return *bağlantı_;
}

void Recordset::değiştirilebilirOlmalı() const
{
    açık();
    if (!değiştirilebilir_)
        throw VeritabanıHatası(HataNo::SaltOkunur);
}

void Recordset::git(std::size_t yer)
{
    CancelUpdate();
    satır_.reset();
    yer_ = yer;
}

void Recordset::MoveFirst()
{
    git(0);
}

void Recordset::MoveNext()
{
    if (Eof())
        throw VeritabanıHatası(HataNo::KayıtYok);
    git(yer_ + 1);
}

Field Recordset::Fields(QStringView ad)
{
    const auto yer = std::find_if(sütunlar_.begin(), sütunlar_.end(), [ad](const QString& sütun) {
        return ad.compare(sütun, Qt::CaseInsensitive) == 0;
    });
    if (yer == sütunlar_.end())
        throw VeritabanıHatası(HataNo::ÖğeYok, ad.toString());
    return {*this, static_cast<int>(yer - sütunlar_.begin())};
}

QString Recordset::değer(int sütun)
{
    açık();
    const auto sıra = static_cast<std::size_t>(sütun);
    if (değiştirilebilir_ && bekleyen_ != Bekleyen::Yok) {
        if (bekleyenler_[sıra])
            return *bekleyenler_[sıra];
        if (bekleyen_ == Bekleyen::Ekleme)
            return {};
    }
    if (Eof())
        throw VeritabanıHatası(HataNo::KayıtYok);
    return değiştirilebilir_ ? makaleDeğeri(static_cast<MakaleSütunu>(sütun))
                             : Utf8Metni(metinler_[yer_ * sütunlar_.size() + sıra]);
}

/// The current row's key; throws where there is none, or where it was deleted.
qint64 Recordset::geçerliKimlik() const
{
    if (Eof())
        throw VeritabanıHatası(HataNo::KayıtYok);
    if (kimlikler_[yer_] == 0)
        throw VeritabanıHatası(HataNo::KayıtSilinmiş);
    return kimlikler_[yer_];
}

QString Recordset::makaleDeğeri(MakaleSütunu sütun)
{
    const qint64 kimlik = geçerliKimlik();
    if (sütun == MakaleSütunu::MakaleMetni) {
        Deyim deyim(*bağlantı_, MetinSql);
        if (!deyim.Bağla(1, kimlik).Adım())
            throw VeritabanıHatası(HataNo::KayıtSilinmiş);
        return deyim.Metin(0);
    }
    if (sütun == MakaleSütunu::MakaleBasligi && değişimDamgası_ == bağlantı_->ToplamDeğişim())
        return Utf8Metni(metinler_[yer_]);
    return kısaSütunlar().değerler[static_cast<std::size_t>(sütun)];
}

const Recordset::Satır& Recordset::kısaSütunlar()
{
    const qint64 damga = bağlantı_->ToplamDeğişim();
    if (!satır_ || satır_->değişimDamgası != damga) {
        Deyim deyim(*bağlantı_, KısaSütunlarSql);
        if (!deyim.Bağla(1, kimlikler_[yer_]).Adım())
            throw VeritabanıHatası(HataNo::KayıtSilinmiş);
        Satır yeni{damga, {}};
        for (std::size_t i = 0; i < yeni.değerler.size(); ++i)
            yeni.değerler[i] = deyim.Metin(static_cast<int>(i));
        satır_ = std::move(yeni);
    }
    return *satır_;
}

void Recordset::bekleyenDeğer(int sütun, const QString& değer)
{
    değiştirilebilirOlmalı();
    if (bekleyen_ == Bekleyen::Yok)
        throw VeritabanıHatası(HataNo::KayıtAçılmadı);
    const SütunTanımı& tanım = Tanım(static_cast<MakaleSütunu>(sütun));
    if (değer.contains(QChar(u'\0')))
        throw VeritabanıHatası(HataNo::DeğerGeçersiz, tanım.ad.toString());
    const QString yeni = değer.normalized(QString::NormalizationForm_C);
    if (yeni.size() > tanım.enUzun)
        throw VeritabanıHatası(HataNo::DeğerÇokUzun, tanım.ad.toString());
    bekleyenler_[static_cast<std::size_t>(sütun)] = yeni;
}

void Recordset::AddNew()
{
    değiştirilebilirOlmalı();
    CancelUpdate();
    bekleyen_ = Bekleyen::Ekleme;
}

void Recordset::Edit()
{
    değiştirilebilirOlmalı();
    geçerliKimlik();
    CancelUpdate();
    bekleyen_ = Bekleyen::Değişiklik;
}

void Recordset::Update()
{
    değiştirilebilirOlmalı();
    switch (bekleyen_) {
    case Bekleyen::Yok:
        throw VeritabanıHatası(HataNo::KayıtAçılmadı);
    case Bekleyen::Ekleme:
        ekle();
        break;
    case Bekleyen::Değişiklik:
        değiştir();
        break;
    }
    CancelUpdate();
}

void Recordset::ekle()
{
    İşlem işlem(*bağlantı_);
    Deyim deyim(*bağlantı_, EkleSql);
    for (std::size_t i = 0; i < bekleyenler_.size(); ++i)
        deyim.Bağla(static_cast<int>(i) + 1, QStringView(bekleyenler_[i].value_or(QStringLiteral(""))));
    deyim.Çalıştır();
    işlem.Onayla();
    kimlikler_.push_back(bağlantı_->SonKimlik());
    metinler_.Ekle({});
    satırSayısı_ = kimlikler_.size();
}

void Recordset::değiştir()
{
    QByteArrayList atamalar;
    for (std::size_t i = 0; i < bekleyenler_.size(); ++i) {
        if (bekleyenler_[i])
            atamalar.append(MakaleSütunları[i].ad.toUtf8() + "=?" + QByteArray::number(int(i) + 1));
    }
    if (atamalar.isEmpty())
        return;
    İşlem işlem(*bağlantı_);
    Deyim deyim(*bağlantı_, "UPDATE Makaleler SET " + atamalar.join(", ") + " WHERE Kimlik=?6");
    for (std::size_t i = 0; i < bekleyenler_.size(); ++i) {
        if (bekleyenler_[i])
            deyim.Bağla(static_cast<int>(i) + 1, QStringView(*bekleyenler_[i]));
    }
    deyim.Bağla(6, kimlikler_[yer_]).Çalıştır();
    if (bağlantı_->DeğişenSatır() == 0)
        throw VeritabanıHatası(HataNo::KayıtSilinmiş);
    işlem.Onayla();
}

void Recordset::CancelUpdate()
{
    bekleyen_ = Bekleyen::Yok;
    bekleyenler_.fill(std::nullopt);
}

void Recordset::Delete()
{
    değiştirilebilirOlmalı();
    const qint64 kimlik = geçerliKimlik();
    İşlem işlem(*bağlantı_);
    Deyim(*bağlantı_, SilSql).Bağla(1, kimlik).Çalıştır();
    const bool silindi = bağlantı_->DeğişenSatır() != 0;
    işlem.Onayla();
    kimlikler_[yer_] = 0;
    CancelUpdate();
    if (!silindi) // another recordset was first
        throw VeritabanıHatası(HataNo::KayıtSilinmiş);
}

void Recordset::Close()
{
    bağlantı_.reset();
    kimlikler_.clear();
    metinler_ = {};
    satırSayısı_ = yer_ = 0;
}

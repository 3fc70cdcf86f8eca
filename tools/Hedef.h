// What a command writes beside the library: it stands whole under its name, or not at all.
#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>
#include <QTemporaryDir>

#include <optional>

/// A file. Not there until Bitir; gone with this object where that wasn't reached.
class HedefDosya
{
public:
    enum class Varsa
    {
        Reddet,
        Değiştir
    };
    /// Throws VeritabanıHatası DosyaVar, and what opening a file for writing gives.
    HedefDosya(const QString& yol, Varsa varsa);

    /// Throws VeritabanıHatası DiskDolu or DiskHatası.
    void Yaz(const QByteArray& baytlar);
    /// Writes to the disk what was written so far: what Bitir does after it hardly fails. Throws as Yaz.
    void DiskeYaz();
    /// Written to the disk, then put under its name. Throws as Yaz.
    void Bitir();
    QIODevice& Aygıt() { return dosya_; } ///< for writers that want one

private:
    /// Remembers why a write failed; the toolkit knows of one reason only.
    class Kayıt : public QSaveFile
    {
    public:
        using QSaveFile::QSaveFile;
        int Hata = 0; ///< errno

    protected:
        qint64 writeData(const char* baytlar, qint64 boy) override;
    };

    [[noreturn]] void hataVer() const;

    QString yol_;
    Kayıt dosya_;
};

/// A folder of files, which must not be there, or be empty.
class HedefKlasör
{
public:
    /// Throws VeritabanıHatası DosyaVar, SaltOkunur and what else the system says.
    explicit HedefKlasör(const QString& yol);

    /// A new file in it; throws as HedefDosya.
    void Yaz(const QString& ad, const QByteArray& baytlar);
    void Bitir();

private:
    QString yol_;
    std::optional<QTemporaryDir> geçici_;
};

enum class HedefTürü
{
    Dosya,
    Klasör ///< one that is empty is taken
};
/// Throws VeritabanıHatası DosyaVar where the target exists and can't be taken, what the system says where
/// nothing can be made there, and what HedefAdıUygunOlmalı throws.
void HedefYeniOlmalı(const QString& yol, HedefTürü tür);
/// Throws AraçHatası for the name of a library's file, and for what is no regular file.
void HedefAdıUygunOlmalı(const QString& yol);

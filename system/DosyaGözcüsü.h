// Tells when other programs open and close a file.
#pragma once

#include <QElapsedTimer>
#include <QString>

/// Counts from its making on; knows of nothing until it is told to look. On a system that gives no such
/// notices the file counts as never opened.
class DosyaGözcüsü
{
public:
    explicit DosyaGözcüsü(const QString& yol);
    ~DosyaGözcüsü();
    DosyaGözcüsü(const DosyaGözcüsü&) = delete;
    DosyaGözcüsü& operator=(const DosyaGözcüsü&) = delete;

    /// Takes in what has happened since the last look.
    void Bak();
    bool Açıldı() const { return açıldı_; }
    /// Whether it was opened, and then neither opened nor closed any more for that long.
    /// @param dinlenme ms
    bool Okundu(int dinlenme) const { return açıldı_ && sonOlay_.elapsed() >= dinlenme; }

private:
    int uç_;
    bool açıldı_ = false;
    QElapsedTimer sonOlay_;
};

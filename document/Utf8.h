// UTF-8 that may hold wrong bytes, and telling it from text in a code page.
#pragma once

#include <QByteArrayView>
#include <QString>

/// What stands at the beginning of bytes that are read as UTF-8.
struct Utf8Adımı
{
    int Boy;      ///< bytes of a letter, 1 to 4; or of a wrong one, as far as it could have become a letter
    bool Geçerli; ///< whether it is a letter
};

/// @param baytlar not empty
Utf8Adımı Utf8İlk(QByteArrayView baytlar);

/// Each wrong letter gives one U+FFFD.
QString Utf8Çöz(QByteArrayView baytlar);

/// Counts what speaks for UTF-8 in bytes that come piece by piece.
class Utf8Sayacı
{
public:
    /// @param baytlar a letter doesn't go on in the next piece
    /// @param önceki the byte before them; 0 for none
    void Say(QByteArrayView baytlar, char önceki = '\0');

    /// Whether letters of several bytes are at least as many as wrong ones. Pairs of a Turkish letter and a
    /// punctuation mark of Windows-1254 that look like such a letter don't count.
    bool Utf8Mi() const { return kesin_ >= yanlış_ && (kesin_ > 0 || benzer_ == 0); }
    /// Whether there is any letter above U+007F.
    bool Var() const { return kesin_ > 0; }
    /// Whether one has three bytes and more.
    bool UzunVar() const { return uzun_; }

private:
    qsizetype kesin_ = 0;  // letters of several bytes
    qsizetype benzer_ = 0; // those that may be Turkish ones with a mark behind
    qsizetype yanlış_ = 0;
    bool uzun_ = false;
};

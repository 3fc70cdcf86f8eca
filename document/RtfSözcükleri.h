// Cuts an RTF document into its words.
#pragma once

#include <QByteArrayView>

#include <string_view>

enum class RtfTürü
{
    Son,
    GrupBaşı,
    GrupSonu,
    Sözcük, ///< \name or \name123
    Simge,  ///< a backslash and a sign that is no letter
    Bayt,   ///< \'hh, or an escaped brace or backslash
    Düz     ///< bytes that stand for themselves
};

struct RtfSözcüğü
{
    RtfTürü Tür = RtfTürü::Son;
    std::string_view Ad; ///< a word's name, or plain bytes; points into the document
    bool Değerli = false;
    int Değer = 0; ///< a word's number, brought into the range of int; the byte; the sign
};

/// Neither looks up nor remembers anything. Line ends and other control characters than the tab are not
/// handed out, but behind a backslash a line end is the word "par" and a tab the word "tab".
class RtfSözcükleri
{
public:
    explicit RtfSözcükleri(QByteArrayView belge) : yer_(belge.data()), son_(belge.data() + belge.size()) {}

    RtfSözcüğü Sonraki();
    /// Passes over raw bytes; over none where what would follow them shows that their number is wrong.
    void İkiliAtla(int boy);
    /// What was not handed out yet.
    QByteArrayView Kalan() const { return {yer_, son_}; }

private:
    RtfSözcüğü ters();
    RtfSözcüğü sözcük();
    RtfSözcüğü onaltılık();

    const char* yer_;
    const char* son_;
};

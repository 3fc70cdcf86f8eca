// What the other windows ask of the main window.
#pragma once

#include <QString>
#include <QStringList>

class AnaPencere
{
public:
    /// Refills the author list from the library; an empty table leaves the list as it is.
    virtual void YazarListesiYükle() = 0;
    /// To the same result, after articles of these authors alone were added, changed or deleted. Null is an
    /// author that isn't known: then all are read.
    virtual void YazarListesiYükle(const QStringList& değişenler) = 0;
    /// The title selected in the article list, "" when there is none.
    virtual QString SeçiliMakale() const = 0;
    /// Empties the article list and the text: what is shown must belong to what is selected.
    virtual void MakaleleriBoşalt() = 0;
    /// Gives the article text the font, size and background that are in force now.
    virtual void GörünümüUygula() = 0;

protected:
    ~AnaPencere() = default;
};

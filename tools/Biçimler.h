// The forms in which articles are given out.
#pragma once

#include "tools/Hedef.h"

#include "store/Makale.h"

#include <QString>
#include <QStringView>

#include <functional>

/// Hands over every article, in order, to what it is called with; may be called more than once.
using MakaleGezisi = std::function<void(const std::function<void(const Makale&)>&)>;

struct VermeBiçimi
{
    QStringView Ad;
    HedefTürü Hedef;
    /// Writes all of them, or leaves nothing. Throws what writing throws, and what the walk throws.
    /// @param hedef path of a file, or of a folder where each article is a file of its own
    void (*Ver)(const QString& hedef, const MakaleGezisi& gez);
};

/// Throws YanlışKullanım for an unknown name.
const VermeBiçimi& BiçimBul(const QString& ad);

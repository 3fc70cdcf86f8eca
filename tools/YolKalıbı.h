// What a document's path says of the article in it.
#pragma once

#include "store/Makale.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

/// A pattern such as "{yazar}/{başlık}" or "{yazar} - {başlık} ({tarih})". It is held against as many of the
/// path's last names as it has itself, the very last without its ending.
class YolKalıbı
{
public:
    /// Throws YanlışKullanım for an unknown or doubled name in braces, and for a pattern without any.
    explicit YolKalıbı(const QString& kalıp);

    /// What the path says; all empty where it doesn't fit.
    Makale Uygula(const QString& yol) const;

private:
    int derinlik_; // slashes
    QRegularExpression ifade_;
    std::vector<QString Makale::*> alanlar_; // as the groups of the expression are numbered
};

// The user's guide as what it consists of: sections and the terms of its index.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

/// Made of the guide's Markdown, as docs/kılavuz.md is written: headings with #, tables, code indented by
/// four blanks. Nothing else says what the guide holds, so that its index can't go stale.
class Kılavuz
{
public:
    struct Bölüm
    {
        int Düzey; ///< 1 is the guide itself
        QString Başlık;
        QString Çapa; ///< what links to it name behind #
    };
    /// A heading, the name of a control or file (set in bold or as code), a command, the first cell of a
    /// table's row.
    struct Terim
    {
        QString Yazı; ///< as it stands in the text
        QString Ek;   ///< what an error number means, where the term is one
        int Bölüm;    ///< index of the section that it stands in
    };

    explicit Kılavuz(QStringView markdown);

    const QList<Bölüm>& Bölümler() const { return bölümler_; }
    /// In alphabetical order; of a section each term once.
    const QList<Terim>& Terimler() const { return terimler_; }

    /// Index of the section with this anchor; -1 where there is none.
    int BölümBul(QStringView çapa) const;
    /// The row about an error number; null where there is none.
    const Terim* NumaraBul(int numara) const;
    /// The row about a message, which holds the message's text or its first sentence; null where there is
    /// none.
    const Terim* İletiBul(const QString& ileti) const;

private:
    void paragrafıOku(const QString& yazı);
    void tabloyuOku(const QStringList& satırlar);
    void komutuOku(const QString& yazı);
    void ekle(const QString& yazı, const QString& ek = {});

    QList<Bölüm> bölümler_;
    QList<Terim> terimler_;
};

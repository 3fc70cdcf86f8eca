// Items of old lists, whose bullets and numbers an RTF document may leave to the reader.
#pragma once

#include "document/RtfTabloları.h"

#include <QString>

#include <vector>

/// Descriptions of items are collected while the document is read. A description's place stands for it; -1
/// stands for none.
class RtfMaddeleri
{
public:
    /// Begins a description.
    void Başla() { yazılan_ = {}; }
    /// A word in it.
    void Sözcük(const RtfTanımı& tanım, int değer);
    /// A letter of the text before or behind the number.
    void Harf(RtfEylemi yeri, char16_t harf);
    /// @return the description's place
    int Bitir();

    /// Counts an item.
    /// @return its number or bullet with a tab behind; empty for one that has none
    QString Say(int yer);
    /// A paragraph that is no item: the next one begins anew.
    void Kes();

private:
    struct Madde
    {
        RtfMaddeTürü tür = RtfMaddeTürü::Yok;
        int düzey = 0; // 1 is the outermost
        int ilk = 1;   // number of the first item
        QString ön;
        QString ard;

        bool operator==(const Madde&) const = default;
    };

    Madde yazılan_;
    std::vector<Madde> maddeler_;
    std::vector<int> sıralar_; // how many items of each came
    bool sayıyor_ = false;
};

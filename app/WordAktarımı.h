// What windows do with the word processor.
#pragma once

#include "system/WordBasic.h"

#include <functional>

/// Hands a document to the word processor; tells the user when there is none, or why it did not start.
/// @param doldur fills the new document
void WordeAktar(const std::function<void(WordBasic&)>& doldur);

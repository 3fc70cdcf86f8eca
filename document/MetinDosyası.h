// Reads text files of any kind that articles come in.
#pragma once

#include "document/BiçimliMetin.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// Larger files are refused. A long book has a few megabytes of text, with pictures a hundred; the text's
/// positions are ints, and reading may take twenty times the size in memory.
inline constexpr qint64 MetinDosyasıSınırı = qint64(256) * 1024 * 1024;

/// Reads a file and tells its kind by what it holds: RTF; UTF-16, also without a byte order mark where its
/// letters are those of Europe; UTF-8, also with some wrong bytes; else Windows-1254. Line ends of all kinds
/// and form feeds become "\n". An empty file gives an empty text.
/// @param yol path of a regular file or a link to one
/// @throws MetinOkumaHatası with a sentence that names the file: it is missing, a folder or a device, too
///         large, binary, a damaged RTF document, may not or can't be read, or does not fit into memory
BiçimliMetin MetinDosyasıOku(const QString& yol);

/// A file's content.
/// @throws MetinOkumaHatası it is missing, a folder or a device, too large, may not or can't be read; does
///         not name the file
/// @throws std::bad_alloc
QByteArray DosyaBaytları(const QString& yol);

/// The same as MetinDosyasıOku for a file's content.
/// @throws MetinOkumaHatası binary data or a damaged RTF document
/// @throws std::bad_alloc
BiçimliMetin MetinÇöz(QByteArrayView baytlar);

// Hands a document to a word processor, which is a program of its own.
#pragma once

#include <QByteArray>
#include <QString>

/// Starts the program with the document in a file that only this user can read; the program shows it as a
/// new, untitled one. Returns once the program has read it, has ended well (it does so when it runs
/// already), or after five seconds at most; meanwhile windows paint and take no input.
/// The program outlives this one. The file goes once it was read.
/// @param program path of the executable
/// @param belge RTF
/// @throw ÇalışmaHatası DosyaErişimi: the file can't be written; NesneOluşmadı: the program can't be started;
/// Otomasyon: it ended with an error
void BelgeAktar(const QString& program, const QByteArray& belge);

/// Removes the documents that runs which were killed have left: at once, but for those a word processor may
/// still be about to read; these go two minutes later. To be called once at the start.
void EskiBelgeleriSil();

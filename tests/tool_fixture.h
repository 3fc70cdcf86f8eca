// Runs the built companion as a user would: arguments, standard streams, exit status.
#pragma once

#include "library_fixture.h"

#include <QProcess>
#include <QTest>

/// The exit status, -1 when killed; the output, errors last.
using AraçSonucu = std::pair<int, QByteArray>;

struct AraçKoşulu
{
    QByteArray Girdi = {};
    QString Çıktı = {};                         ///< path of a file for the standard output
    std::function<void(int pid)> Sürerken = {}; ///< then the input isn't ended
    std::function<void()> Önce = {};            ///< in the process, before the companion
};

/// Runs without root's rights to read and write everything.
AraçSonucu AraçÇalıştır(const QStringList& değişkenler, const AraçKoşulu& koşul = {});

/// Fails the test unless it is so.
/// @param baş how the output begins; of an error what comes behind the companion's name
void Olmalı(const AraçSonucu& sonuç, int durum, const QByteArray& baş);

// Another program at work for this one, which ends with it.
#pragma once

#include <QProcessEnvironment>
#include <QStringList>

#include <array>
#include <sys/types.h>
#include <utility>

/// Needs no application object. Whatever becomes of this process, also when it is killed, the program and all
/// that it has started end with it: a watcher between the two sees to that, as long as the thread that made
/// this lives. Its files may have 1 GB, and it leaves no picture of its memory.
class DışProgram
{
public:
    enum class Çıktılar
    {
        Ayrı,
        Birlikte ///< standard output and errors in the order in which they came
    };

    /// Path of the first of these programs that is installed; empty when none is.
    static QString Bul(const QStringList& adlar);

    /// Starts it with nothing to read. A program that can't be started has ended without success.
    DışProgram(const QString& yol, const QStringList& argümanlar, const QProcessEnvironment& ortam,
               Çıktılar çıktılar = Çıktılar::Ayrı);
    ~DışProgram();
    DışProgram(const DışProgram&) = delete;
    DışProgram& operator=(const DışProgram&) = delete;

    /// Waits for its end or for what it puts out, a moment at most.
    /// @return whether it has ended, and all that it has put out was taken
    bool Bekle();
    /// What it has put out since the last call.
    QByteArray Çıktı() { return std::exchange(çıktı_, {}); }
    QByteArray Yakınma() { return std::exchange(yakınma_, {}); }
    /// Once it has ended: whether by itself, with status 0.
    bool Başarılı() const { return durum_ == 0; }
    /// Status with which it has ended; 127 where it could not be started or was killed.
    int Durum() const { return durum_; }
    /// Ends it and all that it has started, and waits for that.
    void Öldür();

private:
    void başlat(const QString& yol, const QStringList& argümanlar, const QProcessEnvironment& ortam,
                const std::array<int, 3>& yazılanlar);
    void topla();

    pid_t bekçi_ = -1; // -1 once it has ended
    int durum_ = 127;
    std::array<int, 3> uçlar_{-1, -1, -1}; // to read: output, errors, and the watcher's, which only ends
    QByteArray çıktı_, yakınma_;
};

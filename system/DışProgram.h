// Another program at work for this one, which ends with it.
#pragma once

#include <QProcess>
#include <QStringList>

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

    /// Waits for its end, a moment at most.
    /// @return whether it has ended
    bool Bekle();
    /// What it has put out since the last call.
    QByteArray Çıktı() { return süreç_.readAllStandardOutput(); }
    QByteArray Yakınma() { return süreç_.readAllStandardError(); }
    /// Whether it has ended by itself, with status 0.
    bool Başarılı() const;
    /// Status with which it has ended.
    int Durum() const { return süreç_.exitCode(); }
    /// Ends it and all that it has started, and waits for that.
    void Öldür();

private:
    QProcess süreç_;
};

// What the windows' tests share: a program folder of its own, opened as the start-up does, with settings
// of its own.
#pragma once

#include "DenemeKitaplığı.h"

#include <QTemporaryDir>

#include <functional>

class QMessageBox;
class QWidget;

/// Sets the common globals and lets go of them when destroyed. One at a time.
class DenemeProgramı
{
public:
    explicit DenemeProgramı(const QList<Makale>& makaleler);
    ~DenemeProgramı();

    const QString& Klasör() const { return kitaplık_.Klasör(); }
    /// Runs the opening steps again, as a next start would.
    void Aç();
    void Kapat();

private:
    DenemeKitaplığı kitaplık_;
    QTemporaryDir ayarlar_;
};

/// Answers the next message box, once it stands, and keeps what it said.
class KutuYanıtlayıcı
{
public:
    enum class Yanıt
    {
        Tamam,
        Evet,
        Hayır,
        Kapat
    };
    /// @param önce called while the box stands, before it is answered
    explicit KutuYanıtlayıcı(Yanıt yanıt, std::function<void(QMessageBox&)> önce = {});
    ~KutuYanıtlayıcı();

    int Sayı = 0; ///< boxes answered
    QString Metin;

private:
    std::unique_ptr<class QTimer> saat_;
};

/// Types letters as a keyboard does; Qt's own helper knows ASCII only.
void Yaz(QWidget& kontrol, const QString& metin);

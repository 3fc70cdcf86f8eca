// What opens the help.
#pragma once

#include "forms/YardımFormu.h"

#include <QObject>

#include <memory>

class QCoreApplication;
class QMessageBox;

/// Answers F1 in all windows by the guide's section about the window, or about the message or error number
/// that a box shows. One for the program, made before its windows; the help window ends with it at the
/// latest.
class Yardım : public QObject
{
public:
    explicit Yardım(QCoreApplication& uygulama);
    ~Yardım() override;

    /// What the menu entries do. Nothing where there is no help.
    static void İçindekileriAç();
    static void DiziniAç();
    /// When the main window closes.
    static void Kapat();

    /// The anchor of the section about a window or one of its controls, found by its name or those of what it
    /// belongs to.
    static QString Konu(const QWidget& kontrol);
    /// All such anchors.
    static QStringList Konular();

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    YardımFormu& form();
    void konuyuAç(const QWidget& kontrol);
    bool iletiyiAç(const QMessageBox& kutu);

    std::unique_ptr<YardımFormu> form_; // made when it is first asked for
};

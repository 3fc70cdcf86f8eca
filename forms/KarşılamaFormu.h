// The splash window of the start-up.
#pragma once

#include <QLabel>
#include <QWidget>

/// Shows the program's picture and version while the library is being opened. Reacts to nothing; made
/// visible by the start-up and closed once the main window stands.
class KarşılamaFormu : public QWidget
{
public:
    KarşılamaFormu();

private:
    QLabel SimgeKutusu;
    QLabel AdEtiketi;
    QLabel SürümEtiketi;
};

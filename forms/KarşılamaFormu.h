// The splash window of the start-up.
#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QWidget>

/// Shows the program's picture and version while the library is being opened. Reacts to nothing; made
/// visible by the start-up and closed once the main window stands.
class KarşılamaFormu : public QWidget
{
public:
    KarşılamaFormu();

    /// To be called again and again while the library is made ready: where that takes long, shows how far it
    /// is.
    /// @param oran from 0 to 1; what is less than before is passed over
    void İlerle(double oran);

private:
    QLabel SimgeKutusu;
    QLabel AdEtiketi;
    QLabel SürümEtiketi;
    QLabel İlerlemeEtiketi;

    QElapsedTimer süre_; // since the first call
    int yüzde_ = 0;
};

// What the windows with links share.
#pragma once

#include "app/Metinler.h"
#include "controls/Düğme.h"
#include "controls/WebEtiketi.h"

#include <QDialog>
#include <QFrame>
#include <QGridLayout>

/// A panel for the content and a closing button below it, which is also what Enter presses. The link under
/// the pointer shows its active look, all others their passive one. As large as its content.
class BilgiFormu : public QDialog
{
protected:
    BilgiFormu(const QString& ad, İleti başlık);

    void bağlantıKur(WebEtiketi& bağlantı, const QString& ad, const QString& yazı, const QString& adres);
    /// To be called once the panel has its content.
    void bitir(Düğme& kapat, const QString& ad);

    bool eventFilter(QObject* nesne, QEvent* olay) override;
    void mouseMoveEvent(QMouseEvent* olay) override;
    void leaveEvent(QEvent* olay) override;

    QFrame Altlık;
    QGridLayout* ızgara; // of the panel; owned by it

private:
    void WebEtiketi_MouseMove(WebEtiketi& bağlantı);
    void Altlık_MouseMove();

    QList<WebEtiketi*> bağlantılar_;
};

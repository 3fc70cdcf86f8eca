// A short notice in the corner of a text.
#pragma once

#include <QLabel>

class ZenginMetinKutusu;

/// Lies over the text's upper right corner, or the lower one where it would cover the caret's line. A screen
/// reader says it, wherever the focus is. It goes when the text or the selection changes; owned by the text's
/// box.
class KöşeBildirimi : public QLabel
{
public:
    explicit KöşeBildirimi(ZenginMetinKutusu& kutu);

    void Göster(const QString& yazı);

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    void yerleş();

    ZenginMetinKutusu& kutu_;
};

// The event KeyPress.
#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QString>

#include <functional>

struct TuşKodları // no namespace: moc can't read one with such a name
{
    static constexpr char16_t Enter = 13;
};

/// Gives a widget the event KeyPress, fired for each typed character, which the handler may replace or
/// swallow (0). What is pasted is not typed and passes as it is.
template<class Taban> class TuşOlaylı : public Taban
{
public:
    using Taban::Taban;

    std::function<void(char16_t& kod)> KeyPress;

protected:
    void keyPressEvent(QKeyEvent* olay) override
    {
        const QString yazılan = olay->text();
        const auto ekTuşlar = olay->modifiers() & (Qt::AltModifier | Qt::ControlModifier);
        if (ekTuşlar == Qt::AltModifier && !yazılan.isEmpty() && yazılan[0].isPrint()) {
            olay->ignore(); // a mnemonic that nothing took types nothing
            return;
        }
        const bool karakter =
            !yazılan.isEmpty() &&
            (yazılan[0].isPrint() || yazılan[0] == QChar(TuşKodları::Enter) || yazılan[0].isSurrogate());
        if (!KeyPress || !karakter) {
            Taban::keyPressEvent(olay);
            return;
        }
        const QString süzülen = süz(yazılan);
        if (süzülen == yazılan) {
            Taban::keyPressEvent(olay);
        } else if (!süzülen.isEmpty()) {
            QKeyEvent yeni(olay->type(), 0, olay->modifiers(), süzülen, olay->isAutoRepeat());
            Taban::keyPressEvent(&yeni);
        }
    }

    // Composed letters (dead keys, input methods) come this way.
    void inputMethodEvent(QInputMethodEvent* olay) override
    {
        if (KeyPress && !olay->commitString().isEmpty())
            olay->setCommitString(süz(olay->commitString()), olay->replacementStart(),
                                  olay->replacementLength());
        Taban::inputMethodEvent(olay);
    }

private:
    QString süz(const QString& yazılan)
    {
        QString süzülen;
        for (const QChar harf : yazılan) {
            char16_t kod = harf.unicode();
            KeyPress(kod);
            if (kod != 0)
                süzülen += QChar(kod);
        }
        return süzülen;
    }
};

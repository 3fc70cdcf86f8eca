// What happened, for whoever doesn't see it.
#pragma once

class QString;

/// Has a screen reader say it, wherever the focus is, also a second time: as a notice that is shown. A new
/// description of a control is not said, since this toolkit's event for it does not carry the text.
void Duyur(const QString& metin);

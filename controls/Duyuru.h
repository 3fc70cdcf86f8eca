// What happened, for whoever doesn't see it.
#pragma once

class QString;

/// Has a screen reader say it, also a second time: as a new description of the control that has the focus,
/// since that is what readers listen to.
void Duyur(const QString& metin);

// The program's own picture. Drawn by scripts/simgeler.sh.
#pragma once

#include <QIcon>
#include <QLabel>

/// For title bars and task lists.
QIcon ProgramSimgesi();

/// Makes a label show the picture, as fine as the screen of the label's window.
/// @param boy width and height in twips
void ProgramResmiKoy(QLabel& kutu, int boy);

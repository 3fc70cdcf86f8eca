// The start-up sequence.
#pragma once

class QApplication;

/// Begins with what can be done beside the toolkit's own start. For main's first lines.
void ErkenBaşla();

/// Starts the program and runs it until its main window closes. Call once, before any window exists.
/// @return exit status: 0 after a normal end and where another instance runs already. A refusal and an
/// error during the start end the process with status 1 without returning.
int SubMain(QApplication& uygulama);

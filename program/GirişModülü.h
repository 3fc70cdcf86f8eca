// The start-up sequence.
#pragma once

class QApplication;

/// Starts the program and runs it until its main window closes. Call once, before any window exists.
/// @return exit status: 0 after a normal end and where another instance runs already. A refusal and an
/// error during the start end the process with status 1 without returning.
int SubMain(QApplication& uygulama);

// The dialog that asks for a file to read.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// Lets the user choose an existing file; modal to its owner. The dialog is gone on return: its list of
/// completions may still stand open, and while one does no window gets the keyboard back.
/// @return its path; "" where none was chosen
QString DosyaSor(QWidget& sahip, const QString& başlık, const QString& klasör, const QStringList& süzgeçler);

#pragma once

#include <QString>
#include <QtGlobal>

/// The line that a Qt message becomes: "Warning: message (file:line, function)".
QString formatMessage(QtMsgType type, const QMessageLogContext &context, const QString &message);

/// Whether messages of this type go to the log file; debug and info messages do not.
bool isLogged(QtMsgType type);

/// Makes the program's log file the receiver of Qt's messages. Debug and info messages are
/// dropped; a fatal one is written before the process aborts.
void installMessageHandler();

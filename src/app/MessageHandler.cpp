#include "MessageHandler.h"

#include "Logger.h"

namespace {

QString typeName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("Debug");
    case QtInfoMsg:
        return QStringLiteral("Info");
    case QtWarningMsg:
        return QStringLiteral("Warning");
    case QtCriticalMsg:
        return QStringLiteral("Critical");
    case QtFatalMsg:
        break;
    }
    return QStringLiteral("Fatal");
}

void writeToLog(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (isLogged(type))
        Logger::instance().write(formatMessage(type, context, message), Logger::Warning);
}

} // namespace

QString formatMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // Joined, not put into a pattern: the message may itself hold what looks like a place holder.
    return typeName(type) + QStringLiteral(": ") + QString::fromLocal8Bit(message.toLocal8Bit()) +
           QStringLiteral(" (") + QString::fromLocal8Bit(context.file) + QLatin1Char(':') +
           QString::number(context.line) + QStringLiteral(", ") +
           QString::fromLocal8Bit(context.function) + QLatin1Char(')');
}

bool isLogged(QtMsgType type)
{
    return type != QtDebugMsg && type != QtInfoMsg;
}

void installMessageHandler()
{
    qInstallMessageHandler(writeToLog);
}

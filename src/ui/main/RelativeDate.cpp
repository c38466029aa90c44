#include "RelativeDate.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

const qint64 dayMs = 86400000;

QString text(const char *source)
{
    return QCoreApplication::translate("RelativeDate", source);
}

} // namespace

QString relativeDate(const QDateTime &moment, const QDateTime &now)
{
    const qint64 days = moment.msecsTo(now) / dayMs;
    if (days <= 0)
        return text(QT_TRANSLATE_NOOP("RelativeDate", "today"));
    if (days == 1)
        return text(QT_TRANSLATE_NOOP("RelativeDate", "yesterday"));
    return text(QT_TRANSLATE_NOOP("RelativeDate", "%1 days ago")).arg(days);
}

QString relativeMoment(const QDateTime &moment, const QDateTime &now)
{
    const QString time =
        QLocale::system().toString(moment.toLocalTime().time(), QLocale::ShortFormat);
    return text(QT_TRANSLATE_NOOP("RelativeDate", "%1 in %2")).arg(relativeDate(moment, now), time);
}

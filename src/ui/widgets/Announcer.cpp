#include "Announcer.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace {

QAccessibleInterface *makeAlert(const QString &className, QObject *object)
{
    const bool announces = className == QLatin1String("SnackBar") ||
                           className == QLatin1String("MessageLabel") ||
                           className == QLatin1String("NoticeBanner");
    if (!announces || !object || !object->isWidgetType())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::AlertMessage);
}

} // namespace

void Announcer::install()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeAlert);
        return true;
    }();
    Q_UNUSED(installed)
}

void Announcer::announce(QWidget &widget, const QString &text)
{
    if (widget.accessibleName() == text)
        return;
    // Some tools speak when a name changes, others when an alert comes up.
    widget.setAccessibleName(text);
    if (text.isEmpty())
        return;
    QAccessibleEvent alert(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

#include "LoginForms.h"

#include "LoginClassifiers.h"

QVector<FilledForm> fillPasswordForms(const QJsonObject &page, const QString &password)
{
    return fillForms(page, {nullptr, {{passwordScore, password, true}}});
}

QVector<FilledForm> fillLoginForms(const QJsonObject &page, const QString &login,
                                   const QString &password)
{
    return fillForms(page, {visibleFieldScore,
                            {{loginNameScore, login, false},
                             {namedPasswordScore, password, true},
                             {visiblePasswordScore, password, true}}});
}

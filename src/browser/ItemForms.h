#pragma once

#include "FormFiller.h"

class PMCreditCard;
class PMIdentity;

/// The card into the fields of the page that take it.
QVector<FilledForm> fillCardForms(const QJsonObject &page, const PMCreditCard &card);

/// The person into the fields of the page that take it.
QVector<FilledForm> fillIdentityForms(const QJsonObject &page, const PMIdentity &identity);

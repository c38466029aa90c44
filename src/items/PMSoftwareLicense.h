#pragma once

#include "PMListItem.h"

/// A licence of a program.
class PMSoftwareLicense : public PMListItem
{
    Q_OBJECT

public:
    explicit PMSoftwareLicense(QObject *parent = nullptr)
        : PMListItem(SoftwareLicense, parent)
    {
    }

    PM_PROPERTY(QString, version, setVersion)
    PM_PROPERTY(QString, licenseKey, setLicenseKey)
};

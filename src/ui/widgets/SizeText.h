#pragma once

#include <QCoreApplication>

/// How large a file is, for people.
class SizeText
{
    Q_DECLARE_TR_FUNCTIONS(SizeText)

public:
    /// In kilobytes of 1,024 bytes, as the limit of attachments counts, or more.
    static QString of(qint64 bytes);
};

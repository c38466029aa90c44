#include "SizeText.h"

#include <QLocale>

QString SizeText::of(qint64 bytes)
{
    const double kilobyte = 1024;
    const double megabyte = 1024 * kilobyte;
    const double gigabyte = 1024 * megabyte;
    const auto number = static_cast<double>(bytes);
    const QLocale locale;
    if (number < kilobyte)
        return tr("less than 1 KB");
    if (number < megabyte)
        return tr("%1 KB").arg(locale.toString(number / kilobyte, 'f', 0));
    if (number < gigabyte)
        return tr("%1 MB").arg(locale.toString(number / megabyte, 'f', 1));
    return tr("%1 GB").arg(locale.toString(number / gigabyte, 'f', 1));
}

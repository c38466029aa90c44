#pragma once

#include <QByteArray>
#include <QImage>

/// The icons come from web sites, so nothing about their bytes is trusted.
namespace SiteIconImage {

constexpr qint64 largestFile = 1024 * 1024;

/// The format of a picture that can be decoded without harm, as the image reader names it. Empty
/// for all that is none: no picture, a large one, or a format that can refer to other files.
QByteArray format(const QByteArray &bytes);

/// The picture, scaled to fit a square of so many pixels; null when format() is empty or it cannot
/// be decoded.
QImage read(const QByteArray &bytes, int side);

} // namespace SiteIconImage

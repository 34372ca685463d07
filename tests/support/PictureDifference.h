#pragma once

#include <QImage>

#include <algorithm>
#include <cstdlib>

/// The largest difference of a channel, in levels of 255 as they are painted: of 255 if the sizes
/// differ.
inline int largestDifference(const QImage& one, const QImage& other)
{
    const QImage a = one.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = other.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int largest = a.size() == b.size() ? 0 : 255;
    for (qsizetype i = 0; i < a.sizeInBytes() && largest < 255; ++i)
        largest = std::max(largest, std::abs(a.constBits()[i] - b.constBits()[i]));
    return largest;
}

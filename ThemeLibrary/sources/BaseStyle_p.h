#pragma once

#include <QStringBuilder>

#include <cstring>

namespace BRELK::ProxyStyle_p {

/// A number as text of fixed width, for building keys without allocating: two hexadecimal digits
/// per byte, all of them in reversed order.
template <class T>
struct HexString
{
    explicit HexString(T value) : val(value) { }

    void write(QChar*& out) const
    {
        constexpr char Digits[] = "0123456789abcdef";
        constexpr unsigned NibbleBits = 4;
        constexpr unsigned NibbleMask = 0xf;
        unsigned char bytes[sizeof(T)];
        std::memcpy(bytes, &val, sizeof(T));
        for (const unsigned byte : bytes) {
            *out++ = QLatin1Char(Digits[byte & NibbleMask]);
            *out++ = QLatin1Char(Digits[byte >> NibbleBits]);
        }
    }

    const T val;
};

} // namespace BRELK::ProxyStyle_p

/// Makes it an operand of string concatenation.
template <class T>
struct QConcatenable<BRELK::ProxyStyle_p::HexString<T>>
{
    using type = BRELK::ProxyStyle_p::HexString<T>;
    using ConvertTo = QString;

    enum { ExactSize = true };

    static int size(const type& /*value*/) { return int(2 * sizeof(T)); }

    static void appendTo(const type& value, QChar*& out) { value.write(out); }
};

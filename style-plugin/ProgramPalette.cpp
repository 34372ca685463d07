#include "ProgramPalette.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace BRELK::ProgramPalette {

namespace {

struct Pair
{
    QPalette::ColorRole ground;
    QPalette::ColorRole words;
};

constexpr Pair Grounds[] = {{QPalette::Window, QPalette::WindowText},
                            {QPalette::Base, QPalette::Text},
                            {QPalette::Button, QPalette::ButtonText}};

constexpr Pair Accents[] = {{QPalette::AlternateBase, QPalette::Text},
                            {QPalette::Highlight, QPalette::HighlightedText}};

bool isReadable(const QPalette& palette, const Pair& pair)
{
    constexpr int LeastDifference = 70; // of 255
    const auto gray = [&palette](QPalette::ColorRole role) {
        return qGray(palette.color(QPalette::Active, role).rgb());
    };
    return std::abs(gray(pair.ground) - gray(pair.words)) >= LeastDifference;
}

template <std::size_t Size>
bool areReadable(const QPalette& palette, const Pair (&pairs)[Size])
{
    return std::all_of(std::begin(pairs), std::end(pairs),
                       [&palette](const Pair& pair) { return isReadable(palette, pair); });
}

bool has(const QPalette& palette, const QPalette& themed, QPalette::ColorRole role)
{
    return palette.brush(QPalette::Active, role) == themed.brush(QPalette::Active, role);
}

bool keepsGrounds(const QPalette& palette, const QPalette& themed)
{
    return std::all_of(std::begin(Grounds), std::end(Grounds), [&](const Pair& pair) {
        return has(palette, themed, pair.ground) && has(palette, themed, pair.words);
    });
}

void renewColors(QWidget& widget, const QPalette& before, const QPalette& after)
{
    QPalette palette = widget.palette();
    for (int index = 0; index < QPalette::NColorRoles; ++index) {
        const auto role = QPalette::ColorRole(index);
        if (!(palette.resolve() & (1U << index)) || !has(palette, before, role))
            continue;
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            palette.setBrush(group, role, after.brush(group, role));
    }
    if (palette != widget.palette())
        widget.setPalette(palette);
}

} // namespace

QPalette withReadableGroups(QPalette palette)
{
    constexpr auto Disabled = QPalette::Disabled;
    palette.setBrush(Disabled, QPalette::Highlight,
                     palette.brush(QPalette::Inactive, QPalette::Highlight));
    for (const auto role : {QPalette::HighlightedText, QPalette::Link, QPalette::LinkVisited})
        palette.setBrush(Disabled, role, palette.brush(Disabled, QPalette::Text));
    return palette;
}

bool isWhole(const QPalette& palette, const QPalette& themed)
{
    const bool bringsAll =
        std::none_of(std::begin(Grounds), std::end(Grounds),
                     [&](const Pair& pair) { return has(palette, themed, pair.ground); });
    return (bringsAll || keepsGrounds(palette, themed)) && areReadable(palette, Grounds)
           && areReadable(palette, Accents);
}

void handOn(const QPalette& before, const QPalette& after)
{
    if (before == after)
        return;
    for (QWidget* widget : QApplication::allWidgets())
        renewColors(*widget, before, after);
}

} // namespace BRELK::ProgramPalette

#pragma once

#include "StyleOptions.h"
#include "Transcript.h"

#include <QStyleOption>

/// A state that a widget can be painted in, as it differs from the one at rest.
struct PaintedState
{
    const char* name;
    QStyle::State added = QStyle::State_None;
    QStyle::State removed = QStyle::State_None;
};

/// What `element` is drawn with in each of `states`, under headings, at the size of `rect`: for an
/// option that the toolkit's own widget would pass.
template <class Element>
QByteArray transcriptOfStates(Element element, const QVector<PaintedState>& states,
                              const QRect& rect = QRect(0, 0, 120, 28))
{
    QByteArray text;
    for (const PaintedState& state : states) {
        const StyleOptions::Sample sample = StyleOptions::sampleFor(element);
        QStyleOption& option = *sample.option;
        option.rect = rect;
        option.state = (option.state | state.added) & ~state.removed;
        if (!(option.state & QStyle::State_Enabled))
            option.palette.setCurrentColorGroup(QPalette::Disabled);
        text += QByteArray("# ") + StyleOptions::nameOf(element) + ", " + state.name + '\n'
                + transcriptOf(drawn(element, option, sample.widget.get()));
    }
    return text;
}

/// Publishes the probe theme and makes `BaseStyle` the application's style, with a palette and a
/// font that have names too.
void applyProbeStyle();

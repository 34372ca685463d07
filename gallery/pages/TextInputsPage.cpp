#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/StateGrid.h"

#include <QCompleter>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

constexpr int FieldWidth = 19 * Unit;

QLineEdit* makeField(const QString& text)
{
    auto* field = new QLineEdit(text);
    field->setFixedWidth(FieldWidth);
    return field;
}

QLineEdit* makeSample()
{
    return makeField(QStringLiteral("Sample 17"));
}

QLineEdit* makePlaceholder()
{
    QLineEdit* field = makeField({});
    field->setPlaceholderText(QStringLiteral("Name of the sample"));
    return field;
}

QLineEdit* makeClearable()
{
    QLineEdit* field = makeSample();
    field->setClearButtonEnabled(true);
    return field;
}

QLineEdit* makeSearch()
{
    QLineEdit* field = with(makeField({}), "customActionIcons");
    field->setPlaceholderText(QStringLiteral("Search"));
    field->addAction(getIcon(QStringLiteral("action.find")), QLineEdit::LeadingPosition);
    return field;
}

QLineEdit* makeReadOnly()
{
    QLineEdit* field = makeSample();
    field->setReadOnly(true);
    return field;
}

QLineEdit* makePassword()
{
    QLineEdit* field = makeField(QStringLiteral("password"));
    field->setEchoMode(QLineEdit::Password);
    return field;
}

QLineEdit* makeFrameless()
{
    QLineEdit* field = makeSample();
    field->setFrame(false);
    return field;
}

QLineEdit* makeSelected()
{
    QLineEdit* field = makeField(QStringLiteral("Selected text"));
    field->selectAll();
    return field;
}

void addLineEdits(Section& section)
{
    auto* grid = new StateGrid({State::Normal, State::Hovered, State::Focused, State::Disabled});
    grid->addRow(QStringLiteral("With text"), makeSample);
    grid->addRow(QStringLiteral("Placeholder"), makePlaceholder);
    grid->addRow(QStringLiteral("Clear button"), makeClearable);
    grid->addRow(QStringLiteral("Search"), makeSearch);
    grid->addRow(QStringLiteral("Error"), [] { return with(makeSample(), "drawErrorIndicator"); });
    grid->addRow(QStringLiteral("Read-only"), makeReadOnly);
    grid->addRow(QStringLiteral("Password"), makePassword);
    grid->addRow(QStringLiteral("Selection"), makeSelected);
    grid->addRow(QStringLiteral("No frame"), makeFrameless);
    section.add(grid);
}

void addCompleter(Section& section)
{
    QLineEdit* field = makePlaceholder();
    field->setPlaceholderText(QStringLiteral("Type \"ma\""));
    auto* completer = new QCompleter({QStringLiteral("Magnesium"), QStringLiteral("Manganese"),
                                      QStringLiteral("Mercury"), QStringLiteral("Molybdenum")},
                                     field);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    field->setCompleter(completer);
    QLineEdit* number = makeField(QStringLiteral("12.5 mm"));
    number->setAlignment(Qt::AlignRight);
    QLineEdit* tall = makeField(QStringLiteral("Large"));
    QFont font = BRELK::ThemeResources::getFont(QStringLiteral("large"));
    tall->setFont(font);
    QLineEdit* longText =
        makeField(QStringLiteral("A text that goes on for longer than there is room in its field"));
    longText->setCursorPosition(0);
    section.add(row({captioned(QStringLiteral("Completer"), field),
                     captioned(QStringLiteral("Right-aligned"), number),
                     captioned(QStringLiteral("Large font"), tall),
                     captioned(QStringLiteral("Longer than the field"), longText)}));
}

QTextEdit* makeRichText()
{
    auto* editor = new QTextEdit;
    editor->setHtml(
        QStringLiteral("<h3>Findings</h3><p>The <b>porosity</b> grows towards the <i>rim</i>, see "
                       "<a href=\"#figure\">figure 3</a>.</p><ul><li>first layer: 3 %</li>"
                       "<li>second layer: 8 %</li></ul>"));
    editor->setFixedHeight(18 * Unit);
    return editor;
}

QPlainTextEdit* makePlainText()
{
    auto* editor = new QPlainTextEdit(
        QStringLiteral("# Steps\nload sample-17\nfilter median 3\nthreshold 0.42\n"
                       "label --connectivity 26\nmeasure --all > table.csv\nreport"));
    editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    editor->setFixedHeight(14 * Unit);
    return editor;
}

} // namespace

void fillTextInputs(Page& page)
{
    addLineEdits(page.addSection(QStringLiteral("Line edits")));
    addCompleter(page.addSection(QStringLiteral("Texts and sizes")));
    Section& editors = page.addSection(QStringLiteral("Text editors"));
    editors.add(pair(makeRichText(), makeRichText()), true);
    editors.add(pair(makePlainText(), makePlainText()), true);
}

} // namespace Gallery

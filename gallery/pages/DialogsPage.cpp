#include "Pages.h"
#include "ThemeFactory.h"
#include "kit/Page.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QColorDialog>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFocusEvent>
#include <QFontDialog>
#include <QFormLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <QWizard>

namespace Gallery {

namespace {

/// Lets `dialog` be a part of the page, which its own buttons cannot close.
template <class Dialog>
Dialog* embedded(Dialog* dialog)
{
    dialog->setWindowFlags(Qt::Widget);
    dialog->setSizeGripEnabled(false);
    QObject::connect(dialog, &QDialog::finished, dialog, &QWidget::show, Qt::QueuedConnection);
    // A dialog tells its first field that it has the focus, whether it is so or not.
    auto* shown = new QTimer(dialog);
    shown->setSingleShot(true);
    QObject::connect(shown, &QTimer::timeout, dialog, [dialog] {
        QWidget* field = dialog->focusWidget();
        QFocusEvent lost(QEvent::FocusOut);
        if (field && !field->hasFocus())
            QCoreApplication::sendEvent(field, &lost);
    });
    shown->start(0);
    return dialog;
}

/// A frame around an embedded dialog, as its window would have.
QWidget* framed(QWidget* dialog)
{
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(dialog);
    return frame;
}

QMessageBox* makeMessage(QMessageBox::Icon icon, const QString& text,
                         QMessageBox::StandardButtons buttons)
{
    auto* box = new QMessageBox;
    box->setIcon(icon);
    box->setText(text);
    box->setStandardButtons(buttons);
    return box;
}

void addMessages(Section& section)
{
    QMessageBox* question =
        makeMessage(QMessageBox::Question, QStringLiteral("Save the changes to \"Turbine\"?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    question->setInformativeText(QStringLiteral("Otherwise they are lost."));
    QMessageBox* warning =
        makeMessage(QMessageBox::Warning, QStringLiteral("The disk is nearly full."),
                    QMessageBox::Ok | QMessageBox::Help);
    warning->setCheckBox(new QCheckBox(QStringLiteral("Do not tell me again")));
    QMessageBox* critical =
        makeMessage(QMessageBox::Critical, QStringLiteral("The scan could not be read."),
                    QMessageBox::Retry | QMessageBox::Close);
    critical->setDetailedText(QStringLiteral("slice 17: unexpected end of file"));
    QMessageBox* information = makeMessage(QMessageBox::Information,
                                           QStringLiteral("The report is ready."), QMessageBox::Ok);
    section.add(row({framed(embedded(question)), framed(embedded(warning))}));
    section.add(row({framed(embedded(critical)), framed(embedded(information))}));
}

QInputDialog* makeInput()
{
    auto* input = new QInputDialog;
    input->setLabelText(QStringLiteral("Name of the specimen"));
    input->setTextValue(QStringLiteral("Bracket A"));
    return input;
}

QProgressDialog* makeProgress()
{
    auto* progress =
        new QProgressDialog(QStringLiteral("Reading slices..."), QStringLiteral("Cancel"), 0, 100);
    progress->setAutoClose(false);
    progress->setMinimumDuration(0);
    progress->setValue(40);
    return progress;
}

QFileDialog* makeFileDialog()
{
    auto* dialog = new QFileDialog;
    dialog->setOptions(QFileDialog::DontUseNativeDialog);
    const QString directory = BRELK::ThemeFactory::getInstance().getThemesRepositoryPath();
    dialog->setDirectory(directory);
    dialog->setSidebarUrls({QUrl::fromLocalFile(directory)});
    dialog->setViewMode(QFileDialog::List);
    // The toolkit would take the widths that this user's dialogs had last.
    dialog->findChild<QSplitter*>()->setSizes({20 * Unit, 60 * Unit});
    return dialog;
}

QColorDialog* makeColorDialog()
{
    auto* dialog = new QColorDialog(QColor(QStringLiteral("steelblue")));
    dialog->setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::ShowAlphaChannel);
    return dialog;
}

QFontDialog* makeFontDialog()
{
    auto* dialog = new QFontDialog;
    dialog->setOptions(QFontDialog::DontUseNativeDialog);
    return dialog;
}

QCalendarWidget* makeCalendar(bool enabled)
{
    auto* calendar = new QCalendarWidget;
    calendar->setSelectedDate({2024, 9, 18});
    calendar->setEnabled(enabled);
    return calendar;
}

QWizardPage* makeWizardPage(const QString& title)
{
    auto* page = new QWizardPage;
    page->setTitle(title);
    page->setSubTitle(QStringLiteral("Choose where the slices come from."));
    auto* form = new QFormLayout(page);
    form->addRow(QStringLiteral("Directory"), new QLineEdit(QStringLiteral("scans/turbine")));
    form->addRow(QStringLiteral("Pattern"), new QLineEdit(QStringLiteral("*.tif")));
    return page;
}

QWizard* makeWizard(QWizard::WizardStyle style)
{
    auto* wizard = new QWizard;
    wizard->setWizardStyle(style);
    wizard->addPage(makeWizardPage(QStringLiteral("Import slices")));
    wizard->addPage(makeWizardPage(QStringLiteral("Check them")));
    wizard->setOption(QWizard::HaveHelpButton);
    wizard->setFixedHeight(40 * Unit);
    return wizard;
}

/// A button that opens what `make` makes as a window of its own.
template <class Make>
QPushButton* makeOpener(const QString& text, Make make)
{
    auto* button = new QPushButton(text);
    QObject::connect(button, &QPushButton::clicked, button, [button, make] {
        QDialog* dialog = make();
        dialog->setParent(button->window(), dialog->windowFlags());
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
    return button;
}

} // namespace

void fillDialogs(Page& page)
{
    addMessages(page.addSection(QStringLiteral("Messages")));
    QFileDialog* files = embedded(makeFileDialog());
    files->setFixedHeight(54 * Unit); // what it wants depends on when the directory was read
    page.addSection(QStringLiteral("Files")).add(framed(files), true);
    page.addSection(QStringLiteral("Colors")).add(framed(embedded(makeColorDialog())));
    page.addSection(QStringLiteral("Fonts")).add(framed(embedded(makeFontDialog())));
    page.addSection(QStringLiteral("Calendars"))
        .add(row({framed(makeCalendar(true)), framed(makeCalendar(false))}));
    Section& wizards = page.addSection(QStringLiteral("Wizards"));
    wizards.add(framed(embedded(makeWizard(QWizard::ClassicStyle))), true);
    wizards.add(framed(embedded(makeWizard(QWizard::ModernStyle))), true);
    page.addSection(QStringLiteral("Input and progress"))
        .add(row({framed(embedded(makeInput())), framed(embedded(makeProgress()))}));
    page.addSection(QStringLiteral("In windows of their own"))
        .add(row({makeOpener(QStringLiteral("File..."), makeFileDialog),
                  makeOpener(QStringLiteral("Color..."), makeColorDialog),
                  makeOpener(QStringLiteral("Font..."), makeFontDialog),
                  makeOpener(QStringLiteral("Input..."), makeInput),
                  makeOpener(QStringLiteral("Wizard..."),
                             [] { return makeWizard(QWizard::ModernStyle); })}));
}

} // namespace Gallery

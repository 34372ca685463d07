#include "StyleOptions.h"

#include "ProbeTheme.h"
#include "StandIns.h"
#include "Transcript.h"

#include <QStandardItemModel>
#include <QtWidgets>

namespace StyleOptions {

namespace {

constexpr QSize WidgetSize(120, 28);

/// Sets those of the `settings` that begin with `prefix`, which is to be without a point.
void apply(const Settings& settings, const QByteArray& prefix, QObject& object)
{
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting)
        if (const QByteArray name = setting.key().mid(prefix.size());
            setting.key().startsWith(prefix) && !name.contains('.'))
            object.setProperty(name, setting.value());
}

/// Colors that the application sets, before the style sees the widget.
void applyColors(const Settings& settings, QWidget& widget)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    QPalette palette = widget.palette();
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting)
        if (setting.key().startsWith("palette."))
            palette.setColor(QPalette::ColorRole(roles.keyToValue(setting.key().mid(8))),
                             setting.value().toString());
    if (palette != widget.palette())
        widget.setPalette(palette);
}

QIcon iconOf(const Settings& settings)
{
    return settings.value("icon").toByteArray() == "none" ? QIcon() : QIcon(ProbeTheme::pixmap());
}

/// Gives a widget what it can show: those of these properties that it has, and then the settings.
void fill(QWidget& widget, const Settings& settings)
{
    const std::pair<const char*, QVariant> properties[] = {
        {"frameShape", QFrame::StyledPanel},
        {"frameShadow", QFrame::Sunken},
        {"icon", iconOf(settings)},
        {"orientation", Qt::Horizontal},
        {"popupMode", QToolButton::MenuButtonPopup},
        {"tabsClosable", true},
        {"text", QStringLiteral("&Text")},
        {"tickInterval", 33},
        {"tickPosition", QSlider::TicksBothSides},
        {"title", QStringLiteral("Title")},
        {"toolButtonStyle", Qt::ToolButtonTextBesideIcon},
        {"value", 30},
        {"windowTitle", QStringLiteral("Window")}};
    for (const auto& [name, value] : properties)
        if (widget.metaObject()->indexOfProperty(name) >= 0)
            widget.setProperty(name, value);
    apply(settings, {}, widget);
    applyColors(settings, widget);
    const bool upright = widget.property("orientation").toInt() == Qt::Vertical;
    widget.ensurePolished();
    apply(settings, {}, widget); // again, as polishing sets some
    widget.resize(upright ? WidgetSize.transposed() : WidgetSize);
    if (auto* comboBox = qobject_cast<QComboBox*>(&widget)) {
        comboBox->addItem(iconOf(settings), QStringLiteral("Text"));
        apply(settings, {}, widget);
    }
    if (auto* groupBox = qobject_cast<QGroupBox*>(&widget))
        groupBox->setCheckable(settings.value("checkable", true).toBool());
    if (auto* tabBar = qobject_cast<QTabBar*>(&widget))
        for (const char* tab : {"First", "Second"})
            tabBar->addTab(iconOf(settings), QLatin1String(tab));
    if (auto* tabWidget = qobject_cast<QTabWidget*>(&widget))
        tabWidget->addTab(new QWidget, QStringLiteral("Page"));
    if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
        auto* model = new QStandardItemModel(3, 2, view);
        model->setData(model->index(0, 0), QStringLiteral("Text"));
        view->setModel(model);
    }
}

template <class Option, class Widget>
Sample sampleOf(const std::shared_ptr<Widget>& widget, const std::shared_ptr<Option>& option)
{
    option->state |= QStyle::State_Enabled | QStyle::State_Active;
    if constexpr (std::is_base_of_v<QStyleOptionComplex, Option>)
        if (option->subControls == QStyle::SC_None)
            option->subControls = QStyle::SC_All;
    return {nullptr, widget, option};
}

/// A widget that fills its own option, for the `details` of it that the option is about.
template <class Widget, class Option, class... Details>
Sample filled(const Settings& settings, const std::shared_ptr<Open<Widget>>& widget,
              Details... details)
{
    fill(*widget, settings);
    auto option = std::make_shared<Option>();
    widget->initStyleOption(option.get(), details...);
    option->rect = QRect(QPoint(), widget->size());
    return sampleOf(widget, option);
}

template <class Widget, class Option>
Sample filled(const Settings& settings)
{
    return filled<Widget, Option>(settings, std::make_shared<Open<Widget>>());
}

/// A widget whose option is filled from outside.
template <class Widget, class Option = QStyleOption>
Sample plain(const Settings& settings)
{
    auto widget = std::make_shared<Widget>();
    fill(*widget, settings);
    auto option = std::make_shared<Option>();
    option->initFrom(widget.get());
    return sampleOf(widget, option);
}

/// One that is filled further by `complete`.
template <class Widget, class Option, auto complete>
Sample completed(const Settings& settings)
{
    const Sample sample = plain<Widget, Option>(settings);
    complete(static_cast<const Widget&>(*sample.widget), static_cast<Option&>(*sample.option));
    return sample;
}

/// A part that lives as long as the `whole`.
template <class Option>
Sample partOf(const std::shared_ptr<QWidget>& whole, QWidget* part, const QRect& rect)
{
    auto option = std::make_shared<Option>();
    option->initFrom(part);
    option->rect = rect;
    option->state |= QStyle::State_Horizontal;
    return sampleOf(std::shared_ptr<QWidget>(whole, part), option);
}

Sample tab(const Settings& settings)
{
    return filled<QTabBar, QStyleOptionTab>(settings, std::make_shared<Open<QTabBar>>(), 0);
}

Sample rubberBand(const Settings& settings)
{
    return filled<QRubberBand, QStyleOptionRubberBand>(
        settings, std::make_shared<Open<QRubberBand>>(QRubberBand::Rectangle));
}

template <class Menu>
Sample menuItem(const Settings& settings)
{
    auto widget = std::make_shared<Open<Menu>>();
    QAction* action = widget->addAction(QStringLiteral("&Open\tCtrl+O"));
    if (!settings.contains("option.checkType")) // the mark stands where the icon would
        action->setIcon(iconOf(settings));
    return filled<Menu, QStyleOptionMenuItem>(settings, widget, action);
}

void completeBarBase(const QTabBar&, QStyleOptionTabBarBase& option)
{
    option.tabBarRect = option.rect;
    option.selectedTabRect = QRect(0, 0, 40, 28);
}

void completeViewItem(const QAbstractItemView& view, QStyleOptionViewItem& option)
{
    option.widget = &view;
    option.index = view.model()->index(0, 0);
    option.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration
                      | QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::Alternate;
    option.text = QStringLiteral("Text");
    option.icon = ProbeTheme::pixmap();
    option.decorationSize = QSize(16, 16);
    option.showDecorationSelected = true;
}

void completeToolBox(const QToolBox&, QStyleOptionToolBox& option)
{
    option.text = QStringLiteral("Page");
}

void completeTitleBar(const QMdiSubWindow&, QStyleOptionTitleBar& option)
{
    option.text = QStringLiteral("Window");
    option.icon = ProbeTheme::pixmap();
    option.titleBarFlags = Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                           | Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint
                           | Qt::WindowShadeButtonHint;
}

Sample header(const Settings& settings)
{
    auto view = std::make_shared<QTreeView>();
    fill(*view, settings);
    Sample sample = partOf<QStyleOptionHeader>(view, view->header(), QRect(QPoint(), WidgetSize));
    auto& option = static_cast<QStyleOptionHeader&>(*sample.option);
    option.text = QStringLiteral("Name");
    option.icon = ProbeTheme::pixmap();
    option.sortIndicator = QStyleOptionHeader::SortDown;
    return sample;
}

Sample splitterHandle(const Settings&)
{
    auto splitter = std::make_shared<QSplitter>();
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    return partOf<QStyleOption>(splitter, splitter->handle(1), QRect(0, 0, 6, 100));
}

Sample sizeGrip(const Settings&)
{
    auto window = std::make_shared<QWidget>();
    return partOf<QStyleOptionSizeGrip>(window, new QSizeGrip(window.get()), QRect(0, 0, 13, 13));
}

/// The elements that a kind of widget paints with and is measured by: their names without the
/// prefix, in which "*" stands for any ending.
struct Row
{
    Sample (*make)(const Settings&);
    QByteArray elements;
};

const Row Rows[] = {
    {filled<QFrame, QStyleOptionFrame>,
     "Frame ShapedFrame FrameContents ShapedFrameContents FrameLayoutItem"},
    {filled<QPushButton, QStyleOptionButton>,
     "FrameDefaultButton FrameButtonBevel PanelButtonCommand PanelButtonBevel PushButton*"},
    {filled<QCheckBox, QStyleOptionButton>, "IndicatorCheckBox CheckBox*"},
    {filled<QRadioButton, QStyleOptionButton>, "IndicatorRadioButton RadioButton*"},
    {filled<QToolButton, QStyleOptionToolButton>,
     "FrameButtonTool PanelButtonTool IndicatorArrow* IndicatorButtonDropDown ToolButton*"},
    {filled<QComboBox, QStyleOptionComboBox>, "ComboBox*"},
    {filled<QLineEdit, QStyleOptionFrame>, "FrameLineEdit PanelLineEdit LineEdit*"},
    {filled<QSpinBox, QStyleOptionSpinBox>, "IndicatorSpin* SpinBox* DateTimeEditLayoutItem"},
    {filled<QScrollBar, QStyleOptionSlider>, "ScrollBar*"},
    {filled<MinimizableScrollBar, QStyleOptionSlider>, "ScrollBar*"},
    {filled<QDial, QStyleOptionSlider>, "Dial"},
    {filled<QSlider, QStyleOptionSlider>, "Slider*"},
    {filled<QProgressBar, QStyleOptionProgressBar>, "IndicatorProgressChunk ProgressBar*"},
    {filled<QGroupBox, QStyleOptionGroupBox>, "GroupBox*"},
    {plain<QGroupBox, QStyleOptionFrame>, "FrameGroupBox"},
    {plain<QLabel, QStyleOptionFrame>, "PanelTipLabel LabelLayoutItem"},
    {plain<QLineEdit, QStyleOptionFocusRect>, "FrameFocusRect"},
    {plain<QFocusFrame>, "FocusFrame"},
    {rubberBand, "RubberBand"},
    {sizeGrip, "SizeGrip"},
    {splitterHandle, "Splitter"},

    {tab, "IndicatorTabTear* TabBarTab* TabBarTear* TabBarScroll*"},
    {completed<QTabBar, QStyleOptionTabBarBase, completeBarBase>, "FrameTabBarBase"},
    {filled<QTabWidget, QStyleOptionTabWidgetFrame>, "FrameTabWidget TabWidget*"},
    {plain<QTabBar>, "IndicatorTabClose"},
    {completed<QToolBox, QStyleOptionToolBox, completeToolBox>, "ToolBoxTab*"},
    {filled<QToolBar, QStyleOptionToolBar>, "PanelToolBar ToolBar ToolBarHandle"},
    {plain<QToolBar>, "IndicatorToolBar*"},
    {menuItem<QMenuBar>, "MenuBar*"},
    {menuItem<QMenu>, "IndicatorMenuCheckMark PanelMenu Menu*"},
    {plain<QMenuBar, QStyleOptionFrame>, "PanelMenuBar"},
    {plain<QMenu, QStyleOptionFrame>, "FrameMenu"},
    {plain<QStatusBar>, "FrameStatusBar* PanelStatusBar"},

    {completed<QTreeView, QStyleOptionViewItem, completeViewItem>,
     "IndicatorViewItemCheck IndicatorItemViewItemCheck IndicatorColumnViewArrow PanelItemView* "
     "ViewItem* ItemViewItem* TreeViewDisclosureItem"},
    {completed<QListView, QStyleOptionViewItem, completeViewItem>, "PanelItemView* ItemViewItem"},
    {completed<QTableView, QStyleOptionViewItem, completeViewItem>, "PanelItemView* ItemViewItem"},
    {plain<QTreeView>, "IndicatorBranch IndicatorItemViewItemDrop"},
    {header, "IndicatorHeaderArrow Header HeaderSection HeaderLabel HeaderArrow"},
    {plain<QScrollArea>, "PanelScrollAreaCorner"},

    {plain<QMainWindow>, "IndicatorDockWidgetResizeHandle"},
    {filled<QDockWidget, QStyleOptionDockWidget>, "DockWidget*"},
    {plain<QDockWidget, QStyleOptionFrame>, "FrameDockWidget"},
    {plain<QMdiSubWindow, QStyleOptionFrame>, "FrameWindow"},
    {completed<QMdiSubWindow, QStyleOptionTitleBar, completeTitleBar>, "TitleBar"},
    {plain<QWidget, QStyleOptionComplex>, "MdiControls"},
};

template <class Option, class Value>
void setField(QStyleOption& option, Value Option::*field, int value)
{
    if (auto* own = qstyleoption_cast<Option*>(&option))
        own->*field = Value(value);
}

/// Sets the field of the option that has this name.
void setField(QStyleOption& option, const QByteArray& name, int value)
{
    const auto set = [&](const char* field, auto... members) {
        if (name == field)
            (setField(option, members, value), ...);
    };
    set("activeSubControls", &QStyleOptionComplex::activeSubControls);
    set("checkType", &QStyleOptionMenuItem::checkType);
    set("checked", &QStyleOptionMenuItem::checked);
    set("features", &QStyleOptionButton::features, &QStyleOptionToolButton::features,
        &QStyleOptionViewItem::features);
    set("menuItemType", &QStyleOptionMenuItem::menuItemType);
    set("position", &QStyleOptionTab::position);
    set("tabWidth", &QStyleOptionMenuItem::tabWidth);
    set("titleBarState", &QStyleOptionTitleBar::titleBarState);
}

/// The last of the parts that `control` has a rectangle for; a dial has none.
QStyle::SubControl lastPartOf(QStyle::ComplexControl control)
{
    switch (control) {
    case QStyle::CC_SpinBox: return QStyle::SC_SpinBoxEditField;
    case QStyle::CC_ComboBox: return QStyle::SC_ComboBoxListBoxPopup;
    case QStyle::CC_ScrollBar: return QStyle::SC_ScrollBarGroove;
    case QStyle::CC_Slider: return QStyle::SC_SliderTickmarks;
    case QStyle::CC_ToolButton: return QStyle::SC_ToolButtonMenu;
    case QStyle::CC_TitleBar: return QStyle::SC_TitleBarLabel;
    case QStyle::CC_GroupBox: return QStyle::SC_GroupBoxFrame;
    case QStyle::CC_MdiControls: return QStyle::SC_MdiCloseButton;
    default: return QStyle::SC_None;
    }
}

template <class Painted>
QByteArray measure(Painted, const QStyle&, const Sample&)
{
    return {};
}

QByteArray measure(QStyle::ComplexControl control, const QStyle& style, const Sample& sample)
{
    const auto* option = static_cast<const QStyleOptionComplex*>(sample.option.get());
    QByteArray text = "parts";
    for (unsigned part = 1; part <= lastPartOf(control); part <<= 1)
        text += " " + QByteArray::number(part, 16) + ": "
                + toText(style.subControlRect(control, option, QStyle::SubControl(part),
                                              sample.widget.get()));
    style.hitTestComplexControl(control, option, QPoint(5, 5), sample.widget.get());
    return text + '\n';
}

QByteArray measure(QStyle::SubElement element, const QStyle& style, const Sample& sample)
{
    return toText(style.subElementRect(element, sample.option.get(), sample.widget.get())) + '\n';
}

QByteArray measure(QStyle::ContentsType type, const QStyle& style, const Sample& sample)
{
    QByteArray text = "sizes";
    for (const QSize contents : {QSize(40, 16), QSize(), QSize(20000, 20000)}) {
        style.sizeFromContents(type, nullptr, contents, nullptr);
        const QSize size =
            style.sizeFromContents(type, sample.option.get(), contents, sample.widget.get());
        text += ' ' + toText(QRect(QPoint(), size)).mid(4);
    }
    return text + '\n';
}

template <class Measured>
void paint(Measured, const QStyle&, const Sample&, QPainter*)
{ }

void paint(QStyle::PrimitiveElement element, const QStyle& style, const Sample& sample,
           QPainter* painter)
{
    style.drawPrimitive(element, sample.option.get(), painter, sample.widget.get());
}

void paint(QStyle::ControlElement element, const QStyle& style, const Sample& sample,
           QPainter* painter)
{
    style.drawControl(element, sample.option.get(), painter, sample.widget.get());
}

void paint(QStyle::ComplexControl control, const QStyle& style, const Sample& sample,
           QPainter* painter)
{
    style.drawComplexControl(control, static_cast<const QStyleOptionComplex*>(sample.option.get()),
                             painter, sample.widget.get());
}

template <class Enum>
void appendAll(QVector<Element>& elements)
{
    for (const Enum element : all<Enum>())
        elements.append({nameOf(element),
                         [element](const QStyle& style, const Sample& sample) {
                             return measure(element, style, sample);
                         },
                         [element](const QStyle& style, const Sample& sample, QPainter* painter) {
                             paint(element, style, sample, painter);
                         }});
}

void setState(const Sample& sample, const State& state)
{
    QStyleOption& option = *sample.option;
    option.state = (option.state | state.added) & ~state.removed;
    const bool enabled = option.state & QStyle::State_Enabled;
    sample.widget->setEnabled(enabled);
    if (!enabled)
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    if (state.direction == Qt::RightToLeft) {
        sample.widget->setLayoutDirection(state.direction);
        option.direction = state.direction;
    }
}

void setSize(const Sample& sample, const QByteArray& size)
{
    const QList<QByteArray> numbers = size.split('x');
    if (numbers.size() != 2)
        return;
    sample.widget->resize(numbers.first().toInt(), numbers.last().toInt());
    sample.option->rect = sample.widget->rect();
}

} // namespace

Settings settingsOf(const QByteArray& words)
{
    Settings settings;
    for (const QByteArray& word : words.simplified().split(' ')) {
        const QList<QByteArray> pair = word.split('=');
        QByteArray name = pair.first();
        if (name.startsWith("no_")) // others have "_" in their names
            name.replace('_', ' ');
        settings.insert(name, pair.size() == 2 ? QVariant(QString::fromLatin1(pair.last()))
                                               : QVariant(true));
    }
    return settings;
}

Sample sampleNamed(const QByteArray& element, const Settings& settings, const State& state)
{
    const QByteArray name = element.mid(3);
    const auto fits = [&](const QByteArray& pattern) {
        return name == pattern || (pattern.endsWith('*') && name.startsWith(pattern.chopped(1)));
    };
    Sample sample;
    for (const Row& row : Rows) {
        const QByteArrayList patterns = row.elements.split(' ');
        if (!std::any_of(patterns.cbegin(), patterns.cend(), fits))
            continue;
        sample = row.make(settings);
        const QString widgetClass = QLatin1String(sample.widget->metaObject()->className());
        if (settings.value("class", widgetClass) == widgetClass)
            break;
    }
    if (!sample.widget)
        sample = plain<QWidget>(settings);
    const auto states = QMetaEnum::fromType<QStyle::StateFlag>();
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting) {
        const QByteArray& key = setting.key();
        if (key.startsWith("option."))
            setField(*sample.option, key.mid(7), setting.value().toInt());
        else if (key.startsWith("State_"))
            sample.option->state.setFlag(QStyle::StateFlag(states.keyToValue(key)),
                                         setting.value().toBool());
    }
    const auto ofParent = settings.lowerBound("parent.");
    if (ofParent != settings.cend() && ofParent.key().startsWith("parent.")) {
        sample.parent = std::make_shared<BRELK::Components::ButtonGroupWidget>();
        apply(settings, "parent.", *sample.parent);
        sample.widget->setParent(sample.parent.get());
    }
    setSize(sample, settings.value("size").toByteArray());
    setState(sample, state);
    return sample;
}

QByteArray nameOf(QStyle::ComplexControl control, QStyle::SubControl part)
{
    return QByteArray(nameOf(control)) + ' ' + QByteArray::number(unsigned(part), 16);
}

const QVector<Element>& elements()
{
    static const QVector<Element> sElements = [] {
        QVector<Element> elements;
        appendAll<QStyle::PrimitiveElement>(elements);
        appendAll<QStyle::ControlElement>(elements);
        appendAll<QStyle::ComplexControl>(elements);
        appendAll<QStyle::SubElement>(elements);
        appendAll<QStyle::ContentsType>(elements);
        return elements;
    }();
    return sElements;
}

const Element& elementNamed(const QByteArray& name)
{
    return *std::find_if(elements().cbegin(), elements().cend(),
                         [&](const Element& element) { return element.name == name; });
}

} // namespace StyleOptions

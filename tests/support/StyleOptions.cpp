#include "StyleOptions.h"

#include "ProbeTheme.h"
#include "StandIns.h"

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

/// Colors that the application sets: of the widget, before the style sees it, or, as a style sheet
/// does for a state, of the option alone.
QPalette withColors(QPalette palette, const Settings& settings, const QByteArray& prefix)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting)
        if (setting.key().startsWith(prefix))
            palette.setColor(
                QPalette::ColorRole(roles.keyToValue(setting.key().mid(prefix.size()))),
                setting.value().toString());
    return palette;
}

QIcon probeIcon()
{
    QIcon icon(ProbeTheme::pixmap());
    icon.addPixmap(ProbeTheme::pixmapOn(), QIcon::Normal, QIcon::On);
    return icon;
}

QIcon iconOf(const Settings& settings)
{
    return settings.value("icon").toByteArray() == "none" ? QIcon() : probeIcon();
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
    if (const QPalette own = withColors(widget.palette(), settings, "palette.");
        own != widget.palette())
        widget.setPalette(own);
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
        model->item(0)->appendRow(new QStandardItem);
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
    option.icon = probeIcon();
    option.decorationSize = QSize(16, 16);
    option.showDecorationSelected = true;
}

Sample popupItem(const Settings& settings)
{
    auto comboBox = std::make_shared<QComboBox>();
    fill(*comboBox, settings);
    const QRect rect(QPoint(), WidgetSize);
    const Sample sample = partOf<QStyleOptionViewItem>(comboBox, comboBox->view(), rect);
    completeViewItem(*comboBox->view(), static_cast<QStyleOptionViewItem&>(*sample.option));
    return sample;
}

void completeToolBox(const QToolBox&, QStyleOptionToolBox& option)
{
    option.text = QStringLiteral("Page");
}

void completeTitleBar(const QMdiSubWindow&, QStyleOptionTitleBar& option)
{
    option.text = QStringLiteral("Window");
    option.icon = probeIcon();
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
    option.icon = probeIcon();
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
    {plain<QDateEdit>, "IndicatorArrow*"},
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
    {completed<QListView, QStyleOptionViewItem, completeViewItem>, "PanelItemView* ItemViewItem*"},
    {popupItem, "ItemViewItem*"},
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

/// In which "_" ends a line.
void setText(QStyleOption& option, QString text)
{
    text.replace(QLatin1Char('_'), QLatin1Char('\n'));
    if (auto* item = qstyleoption_cast<QStyleOptionViewItem*>(&option))
        item->text = text;
    if (auto* comboBox = qstyleoption_cast<QStyleOptionComboBox*>(&option))
        comboBox->currentText = text;
}

void setState(const Sample& sample, const State& state)
{
    QStyleOption& option = *sample.option;
    option.state = (option.state | state.added) & ~state.removed;
    const bool enabled = option.state & QStyle::State_Enabled;
    sample.widget->setEnabled(enabled);
    if (!enabled)
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    else if (!(option.state & QStyle::State_Active))
        option.palette.setCurrentColorGroup(QPalette::Inactive);
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
        auto* item = qstyleoption_cast<QStyleOptionViewItem*>(sample.option.get());
        if (key == "option.text")
            setText(*sample.option, setting.value().toString());
        else if (item && key == "option.backgroundBrush")
            item->backgroundBrush = QColor(setting.value().toString());
        else if (key == "option.outset")
            sample.option->rect += QMargins() + setting.value().toInt();
        else if (key.startsWith("option."))
            setField(*sample.option, key.mid(7), setting.value().toInt());
        else if (key.startsWith("State_"))
            sample.option->state.setFlag(QStyle::StateFlag(states.keyToValue(key)),
                                         setting.value().toBool());
    }
    sample.option->palette = withColors(sample.option->palette, settings, "option.palette.");
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

} // namespace StyleOptions

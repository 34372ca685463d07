#include "BaseStyle.h"
#include "BaseStyles.h"
#include "Families.h"

#include <QComboBox>
#include <QFrame>
#include <QStyleOption>

namespace BRELK {

namespace {

/// Which style answers; nobody else asks.
constexpr auto WhoAnswers = QStyle::StyleHint(QStyle::SH_CustomBase + 0x5aa11);

} // namespace

const BaseStyle* BaseStyles::below(const QStyle& style)
{
    QStyleHintReturnVariant answer;
    style.styleHint(WhoAnswers, nullptr, nullptr, &answer);
    return qobject_cast<const BaseStyle*>(answer.variant.value<QObject*>());
}

int BaseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_ComboBox_LayoutDirection:
        // Deliberate: the toolkit asks for this when it has made the list of a box, and nothing
        // else tells of that. To make each list early takes as long as half of all polishing.
        if (const auto* comboBox = qobject_cast<const QComboBox*>(widget);
            comboBox && comboBox->testAttribute(Qt::WA_WState_Polished))
            ComboBoxes::replaceDelegate(const_cast<QComboBox&>(*comboBox));
        break;
    case SH_ComboBox_Popup: return false; // a list below the box, painted by its delegate
    case SH_ComboBox_PopupFrameStyle: return int(QFrame::StyledPanel) | int(QFrame::Plain);
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return false; // Qt's own icons do not follow the theme
    case SH_EtchDisabledText:
        return false; // a light copy below the text is unreadable in dark themes
    case SH_ItemView_ArrowKeysNavigateIntoChildren: return true;
    case SH_ItemView_ShowDecorationSelected: return true;
    case SH_MessageBox_TextInteractionFlags:
        return Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse;
    case SH_RubberBand_Mask: return false; // the band is translucent
    case SH_ScrollBar_Transient: return false;
    case SH_Table_GridLineColor:
        if (const QBrush& border = getBorderBrush(true); border.style() != Qt::NoBrush)
            return int(border.color().rgb());
        break;
    case SH_ToolBox_SelectedPageTitleBold: return true;
    case SH_WindowFrame_Mask: return false; // title bars and frames are drawn to the corners
    default:
        if (auto* answer = qstyleoption_cast<QStyleHintReturnVariant*>(returnData);
            answer && hint == WhoAnswers)
            answer->variant.setValue<QObject*>(const_cast<BaseStyle*>(this));
        break;
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

} // namespace BRELK

// SPDX-License-Identifier: GPL-3.0-or-later
// The table's look: colours, font, line numbers and header, read from the
// defaults store at creation and changed by the preferences' notifications.

#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PreferenceKeys.h"
#include "views/ColorContrast.h"
#include "views/CustomTableHeaderView.h"
#include "views/CustomTextField.h"
#include "views/TranscriptionTableCellDelegate.h"
#include "views/TranscriptionTableModel.h"
#include "views/TranscriptionTableView.h"

#include <QFontMetricsF>
#include <QRgba64>
#include <cmath>

namespace {

const QColor kTitleBandColor(89, 180, 240);

bool isNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

} // namespace

void TranscriptionTableView::initDisplaySetting()
{
    const ObjectStorage storage(m_defaults);
    m_tableBackgroundColor = storage.colorForKey(PreferenceKeys::TableBackgroundColor)
                                 .value_or(DefaultLook::tableBackgroundColor());
    m_dictationTextColor = storage.colorForKey(PreferenceKeys::DictationTextColor)
                               .value_or(DefaultLook::dictationTextColor());
    m_showLineNumbers = m_defaults.boolForKey(PreferenceKeys::ShowLineNumbers);
    m_dictationTextFont = storage.fontForKey(PreferenceKeys::DictationTextFont)
                              .value_or(DefaultLook::dictationTextFont());
    m_cellDelegate->setFont(m_dictationTextFont);
    m_cellDelegate->setTextColor(m_dictationTextColor);
    m_model->setShowLineNumbers(m_showLineNumbers);
    setColumnHidden(TranscriptionTableModel::LineNumberColumn, !m_showLineNumbers);
}

void TranscriptionTableView::observeNotifications()
{
    using Note = NotificationCenter::Notification;
    m_center.addObserver(Notifications::TableBackgroundColorDidChange, this, [this](const Note& n) {
        if (n.object.typeId() != QMetaType::QColor)
            return;
        m_tableBackgroundColor = n.object.value<QColor>();
        applyBackgroundColor();
    });
    m_center.addObserver(Notifications::DictationTextColorDidChange, this, [this](const Note& n) {
        if (n.object.typeId() != QMetaType::QColor)
            return;
        m_dictationTextColor = n.object.value<QColor>();
        applyDictationTextColor();
    });
    m_center.addObserver(Notifications::DictationTextFontDidChange, this, [this](const Note& n) {
        if (n.object.typeId() != QMetaType::QFont)
            return;
        m_dictationTextFont = n.object.value<QFont>();
        applyFont();
    });
    m_center.addObserver(Notifications::ShowLineNumbersDidChange, this, [this](const Note& n) {
        if (isNumber(n.object))
            setShowLineNumbers(n.object.toBool());
    });
    m_center.addObserver(Notifications::MouseDownSelectSegment, this, [this](const Note& n) {
        if (!isNumber(n.object))
            return;
        const qint64 index = n.object.toLongLong();
        if (index < 0 || index >= rowCount())
            return;
        setCurrentSegment(index);
        // A click in the strip picks the row to type in: the keys go there.
        focusEditor(int(index));
    });
}

void TranscriptionTableView::initHeader()
{
    m_header->setTitleFont(m_dictationTextFont);
    m_header->setTitleBgColor(kTitleBandColor);
    m_header->setTitleColor(Qt::white);
}

void TranscriptionTableView::applyRowHeight()
{
    const QSize title = getTableHeaderSegmentSize(m_dictationTextFont);
    m_header->resizeSection(TranscriptionTableModel::LineNumberColumn, title.width());
    setColumnHidden(TranscriptionTableModel::LineNumberColumn, !m_showLineNumbers);
    verticalHeader()->setDefaultSectionSize(int(std::lround(1.4 * title.height())));
    m_tableHeaderHeight = int(title.height() + 4.0);
    m_header->setTitleFont(m_dictationTextFont);
    m_header->setHeaderHeight(m_tableHeaderHeight);
    updateGeometries();
}

QSize TranscriptionTableView::getTableHeaderSegmentSize(const QFont& font) const
{
    const QString title = LocalizedString(Texts::Segment);
    const QFontMetricsF metrics(font);
    qreal byCharacter = 0;
    for (const QChar c : title)
        byCharacter += metrics.horizontalAdvance(c);
    const QRectF bounds = metrics.boundingRect(title);
    const qreal width = std::max({byCharacter, metrics.horizontalAdvance(title), bounds.width()});
    return {int(std::ceil(width)), int(std::ceil(bounds.height()))};
}

QColor TranscriptionTableView::complementaryColorFor(const QColor& color)
{
    if (!color.isValid())
        return {};
    // Inverted on the 16-bit components QColor keeps, so (0.2, 0.4, 0.6)
    // gives exactly (0.8, 0.6, 0.4); white gives black and black white.
    const QRgba64 c = color.toRgb().rgba64();
    return QColor(
        QRgba64::fromRgba64(0xffff - c.red(), 0xffff - c.green(), 0xffff - c.blue(), c.alpha()));
}

void TranscriptionTableView::setShowLineNumbers(bool show)
{
    m_showLineNumbers = show;
    setColumnHidden(TranscriptionTableModel::LineNumberColumn, !show);
    m_model->setShowLineNumbers(show);
    m_header->viewport()->update();
}

void TranscriptionTableView::applyBackgroundColor()
{
    QPalette pal = palette();
    for (const auto role : {QPalette::Base, QPalette::Window, QPalette::AlternateBase,
                            QPalette::Highlight}) // selected rows look like the others
        pal.setColor(role, m_tableBackgroundColor);
    setPalette(pal);
    m_cellDelegate->setNumberColor(complementaryColorFor(m_tableBackgroundColor));
    // The current row's mark: the edited row's field colour or black,
    // whichever stands out more on the table.
    m_cellDelegate->setMarkColor(ColorContrast::bestOn(
        m_tableBackgroundColor, {CustomTextField::fieldColor(), QColor(Qt::black)}));
    viewport()->update();
}

void TranscriptionTableView::applyDictationTextColor()
{
    m_cellDelegate->setTextColor(m_dictationTextColor);
    if (m_editor)
        m_editor->setTextColor(m_dictationTextColor);
    if (m_currentIndex >= 0)
        focusEditor(int(m_currentIndex));
    viewport()->update();
}

void TranscriptionTableView::applyFont()
{
    applyRowHeight();
    m_cellDelegate->setFont(m_dictationTextFont);
    if (m_editor)
        m_editor->setFont(m_dictationTextFont);
    m_cellDelegate->setNumberColor(complementaryColorFor(m_tableBackgroundColor));
    viewport()->update();
}

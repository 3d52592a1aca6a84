#include "ViewAccessibility.h"

#include "EBKitButton.h"
#include "EBKitIconButton.h"
#include "EBKitKeyRow.h"
#include "EBKitMenuRow.h"
#include "EBKitPanelHeader.h"
#include "EBKitPanelView.h"
#include "EBKitRow.h"
#include "EBKitSectionLabel.h"
#include "EBKitSeparator.h"
#include "EBKitSwitch.h"
#include "KeySymbols.h"
#include "PanelWindow.h"

#include <QAccessibleWidget>

#include <array>

namespace {

/// A view that shows whether it is on.
class RowInterface : public QAccessibleWidget {
public:
    explicit RowInterface(EBKitRow &row) : QAccessibleWidget(&row, QAccessible::ListItem), m_row(row) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selected = m_row.on();
        return state;
    }

private:
    EBKitRow &m_row;
};

/// A view that can be pressed.
class ControlInterface : public QAccessibleWidget {
public:
    ControlInterface(EBKitControl &control, QAccessible::Role role) : QAccessibleWidget(&control, role) { }

    QStringList actionNames() const override
    {
        if (!widget()->isEnabled())
            return {};
        QStringList names = QAccessibleWidget::actionNames();
        names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            static_cast<EBKitControl *>(widget())->press();
        else if (widget()->isEnabled())
            QAccessibleWidget::doAction(name);
    }

    QStringList keyBindingsForAction(const QString &name) const override
    {
        const auto *row = qobject_cast<const EBKitMenuRow *>(widget());
        if (row && row->shortcut() && name == pressAction())
            return {KeySymbols::spelled(row->shortcut()->string)};
        return QAccessibleWidget::keyBindingsForAction(name);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Accelerator)
            return keyBindingsForAction(pressAction()).value(0);
        return QAccessibleWidget::text(kind);
    }
};

class SwitchInterface : public ControlInterface {
public:
    explicit SwitchInterface(EBKitSwitch &toggle)
        : ControlInterface(toggle, QAccessible::CheckBox), m_switch(toggle) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = ControlInterface::state();
        state.checkable = true;
        state.checked = m_switch.isOn();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = ControlInterface::actionNames();
        if (!names.isEmpty())
            names.prepend(toggleAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        ControlInterface::doAction(name == toggleAction() ? pressAction() : name);
    }

private:
    EBKitSwitch &m_switch;
};

struct StillView {
    const QMetaObject &type;
    QAccessible::Role role;
};

const std::array stillViews = {
    StillView{EBKitPanelHeader::staticMetaObject, QAccessible::Heading},
    StillView{EBKitSectionLabel::staticMetaObject, QAccessible::StaticText},
    StillView{EBKitKeyRow::staticMetaObject, QAccessible::Grouping},
    StillView{EBKitSeparator::staticMetaObject, QAccessible::Separator},
    StillView{EBKitPanelView::staticMetaObject, QAccessible::Grouping},
    StillView{PanelWindow::staticMetaObject, QAccessible::Dialog},
};

QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    if (auto *toggle = qobject_cast<EBKitSwitch *>(object))
        return new SwitchInterface(*toggle);
    if (auto *row = qobject_cast<EBKitMenuRow *>(object))
        return new ControlInterface(*row, QAccessible::MenuItem);
    if (auto *control = qobject_cast<EBKitControl *>(object))
        return new ControlInterface(*control, QAccessible::Button);
    if (auto *row = qobject_cast<EBKitRow *>(object))
        return new RowInterface(*row);
    for (const StillView &view : stillViews) {
        if (view.type.cast(object))
            return new QAccessibleWidget(static_cast<QWidget *>(object), view.role);
    }
    return nullptr;
}

}

void installViewAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
    Q_UNUSED(installed)
}

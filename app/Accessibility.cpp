#include "app/Accessibility.h"

#include "app/QVDragDropView.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QHash>
#include <QItemSelectionModel>

namespace dravolin {

namespace {

constexpr char busyProperty[] = "busy";
constexpr char roleProperty[] = "accessibleRole";

class RoleWidget : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = isBusy(*widget());
        return state;
    }
};

class DropArea : public RoleWidget
{
public:
    explicit DropArea(QVDragDropView *view) : RoleWidget(view, QAccessible::Button), m_view(view) {}

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction(), showMenuAction()} + RoleWidget::actionNames();
    }
    void doAction(const QString &action) override
    {
        if (action == pressAction())
            m_view->click();
        else if (action == showMenuAction())
            m_view->showMenu(m_view->mapToGlobal(m_view->rect().center()));
        else
            RoleWidget::doAction(action);
    }

private:
    QVDragDropView *m_view;
};

// The action of an entry selects it in the list. Keys and mouse make it the current one as well; when it is
// not, a screen reader has chosen it.
void chooseSelected(QComboBox &popup)
{
    QItemSelectionModel *const selection = popup.view()->selectionModel();
    const QModelIndexList selected = selection->selectedIndexes();
    if (!popup.isEnabled() || selected.size() != 1 || selected.first() == selection->currentIndex())
        return;
    const int row = selected.first().row();
    selection->clear();
    popup.hidePopup();
    popup.setCurrentIndex(row);
    Q_EMIT popup.activated(row);
    Q_EMIT popup.textActivated(popup.itemText(row));
}

void letChoose(QComboBox &popup)
{
    constexpr char done[] = "canBeChosenFrom";
    if (popup.property(done).toBool())
        return;
    popup.setProperty(done, true);
    QObject::connect(
        popup.view()->selectionModel(), &QItemSelectionModel::selectionChanged, &popup,
        [&popup] { chooseSelected(popup); }, Qt::QueuedConnection);
}

// Null: Qt's own interface serves.
QAccessibleInterface *create(const QString &className, QObject *object)
{
    auto *const widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    if (auto *const view = qobject_cast<QVDragDropView *>(widget))
        return new DropArea(view);
    if (auto *const popup = qobject_cast<QComboBox *>(widget))
        letChoose(*popup);
    static const QHash<QString, QAccessible::Role> roles = {
        {QStringLiteral("alert"), QAccessible::AlertMessage},
        {QStringLiteral("graphic"), QAccessible::Graphic},
        {QStringLiteral("separator"), QAccessible::Separator}};
    if (const auto role = roles.constFind(widget->property(roleProperty).toString()); role != roles.cend())
        return new RoleWidget(widget, *role);
    if (className == QLatin1String("QWidget") && widget->windowType() == Qt::Window)
        return new RoleWidget(widget, QAccessible::Window);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(create);
}

void setBusy(QWidget &widget, bool busy)
{
    if (isBusy(widget) == busy)
        return;
    widget.setProperty(busyProperty, busy);
    QAccessible::State changed;
    changed.busy = true;
    QAccessibleStateChangeEvent event(&widget, changed);
    QAccessible::updateAccessibility(&event);
}

bool isBusy(const QWidget &widget)
{
    return widget.property(busyProperty).toBool();
}

void announce(QWidget &alert, const QString &name)
{
    alert.setAccessibleName(name);
    for (const QAccessible::Event kind : {QAccessible::Alert, QAccessible::ObjectShow}) {
        QAccessibleEvent event(&alert, kind);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace dravolin

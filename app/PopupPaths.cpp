#include "app/PopupPaths.h"

namespace dravolin {

void showPaths(QComboBox &popup, const TitleToPath &paths, const QString &purpose)
{
    for (int i = 0; i < popup.count(); ++i)
        popup.setItemData(i, paths.value(popup.itemText(i)), Qt::ToolTipRole);
    const auto follow = [&popup, purpose] {
        const QString path = popup.currentData(Qt::ToolTipRole).toString();
        popup.setToolTip(path);
        popup.setAccessibleDescription(path.isEmpty() ? purpose : purpose + QStringLiteral(": ") + path);
    };
    QObject::disconnect(&popup, &QComboBox::currentIndexChanged, &popup, nullptr);
    QObject::connect(&popup, &QComboBox::currentIndexChanged, &popup, follow);
    follow();
}

} // namespace dravolin

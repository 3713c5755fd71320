#include "app/PopupPaths.h"

namespace dravolin {

void showPaths(QComboBox &popup, const TitleToPath &paths)
{
    for (int i = 0; i < popup.count(); ++i)
        popup.setItemData(i, paths.value(popup.itemText(i)), Qt::ToolTipRole);
    const auto follow = [&popup] { popup.setToolTip(popup.currentData(Qt::ToolTipRole).toString()); };
    QObject::disconnect(&popup, &QComboBox::currentIndexChanged, &popup, nullptr);
    QObject::connect(&popup, &QComboBox::currentIndexChanged, &popup, follow);
    follow();
}

} // namespace dravolin

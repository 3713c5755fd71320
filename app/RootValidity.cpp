#include "app/RootValidity.h"

#include "app/OutlineStyle.h"
#include "base/Texts.h"
#include "ui_MainWindow.h"

#include <algorithm>

namespace dravolin {

namespace {

void mark(QLineEdit &field, bool marked)
{
    field.setProperty(markedProperty, marked);
    field.update();
}

QString caseIdHint(bool toBlame, const QString &caseId)
{
    if (!toBlame)
        return Texts::tr("Patient ID; empty erases it");
    const bool digits = std::all_of(caseId.cbegin(), caseId.cend(), [](QChar c) { return c.isDigit(); });
    return digits ? Texts::tr("Too long together with the root") : Texts::tr("Only digits can be used");
}

} // namespace

void showValidity(const Ui::MainWindow &controls, const RootCheck &root)
{
    const QString caseId = controls.caseIDTextField->text();
    const bool caseIdToBlame = !root.valid && checkRoot(root.trimmedRoot, QString()).valid;
    controls.rootValidLabel->setText(root.valid ? Texts::tr("UID may be valid")
                                                : Texts::tr("Root is invalid, will be replaced"));
    controls.rootValidIcon->setKind(root.valid ? StatusIcon::Kind::Done : StatusIcon::Kind::Attention);
    controls.rootValidIcon->show();
    controls.caseIDHint->setText(caseIdHint(caseIdToBlame, caseId));
    controls.caseIDIcon->setKind(caseIdToBlame ? StatusIcon::Kind::Attention : StatusIcon::Kind::None);
    controls.caseIDIcon->setVisible(caseIdToBlame);
    mark(*controls.caseIDTextField, caseIdToBlame);
}

} // namespace dravolin

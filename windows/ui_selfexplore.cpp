#include "ui_selfexplore.h"

#include "readingtexts.h"
#include "windowform.h"

namespace {

using Form = Ui::selfExplore;

constexpr windowform::Frame frame = {"selfExplore", "MainWindow", {702, 536}, nullptr};

constexpr windowform::Row<Form> rows[] = {
    {WINDOWFORM_FIELD(textEdit), nullptr, {18, 12, 667, 479}, readingtexts::selfExploreEssay,
        "border-color: transparent; border-style: solid; border-width:1px;", windowform::ReadOnly},
    {WINDOWFORM_FIELD(seExitbutton), nullptr, {290, 496, 120, 31}, "Close Window", nullptr,
        windowform::NoFlags},
};

} // namespace

void Ui::selfExplore::setupUi(QMainWindow *window)
{
    windowform::build(*this, window, frame, rows);
}

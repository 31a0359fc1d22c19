#include "shell/frame/ScaleControls.h"

#include "platform/runtime/ErrorHandling.h"
#include "shell/session/Session.h"

#include <QComboBox>

void ScaleControls(float widthRatio, float heightRatio, desktop::MdiForm &window)
{
    const double wide = double(widthRatio);
    const double high = double(heightRatio);
    const double average = double((widthRatio + heightRatio) / 2.0F);
    for (desktop::Control *control : window.Controls()) {
        const bool isCombo = qobject_cast<QComboBox *>(&control->widget()) != nullptr;
        runtime::everyStep(
            [&] {
                control->Move(control->Left() * wide, control->Top() * high, control->Width() * wide,
                              isCombo ? control->Height() : control->Height() * high);
            },
            [&] { control->setFontSize(control->FontSize() * average); });
    }
    if (Session::current().ResizePending)
        window.Move(window.Left() * wide, window.Top() * high, window.Width() * wide, window.Height() * high);
}

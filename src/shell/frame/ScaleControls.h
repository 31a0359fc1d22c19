// The one routine with which a window scales what stands in it.
#pragma once

#include "platform/desktop/MdiForm.h"

// Moves and sizes every control of the window by the two ratios and its font by their average; a combo box keeps its
// height. A step that a control refuses is passed over.
void ScaleControls(float widthRatio, float heightRatio, desktop::MdiForm &window);

#pragma once

#include "platform/View.h"

/// What somebody who cannot see the windows is told of them.
namespace platform::linux_host {

/// From now on a view that can be clicked is a button by the name of its text.
void describeViews();

/// Names the controls of a window's content, each after the label to its left.
void nameControls(const View& content);

/// Tells whoever reads the screen aloud that the view's text is another one.
void announceText(const View& view);

} // namespace platform::linux_host

#pragma once
// The small pictures of the animated cursor container: the buttons cmdANI that show a picture
// rather than a caption, and imgANI, the container's own sign in its title bar.
#include <QPixmap>

namespace vexlo::gui {

// The picture of cmdANI(k) (0, 1, 2, 9 to 19); a null pixmap for a button with a caption.
QPixmap AniButtonPicture(int k);
// imgANI: a tiny film strip.
QPixmap ImgAniPicture();

}  // namespace vexlo::gui

import QtQuick
import QtQuick.Controls.impl

/// An image in one flat colour: its shape is the image's alpha. The pixels are coloured when the
/// image is loaded and not by a shader, so that it shows with every renderer.
IconImage {
    fillMode: Image.PreserveAspectFit
    asynchronous: false
}

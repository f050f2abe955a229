// The slow halves of showing a picture behind a list: reading its file, and making it fit the list and its texts. They
// are plain functions for any thread.
#pragma once

#include <QImage>
#include <QSize>
#include <functional>
#include <string>

#include "desktop/controls/FavesInks.h"

namespace vantrel {

// The first frame of the BMP, JPEG or GIF file of that path, the system's own bytes, made smaller to cover `most` and
// no more. Null when the file is none of these, whatever its name says, cannot be read or is too large, takes
// too long to read, or `isStopped` has become true. A JPEG or GIF that ends early is as much as there is of it.
QImage readPicture(const std::string& path, const QSize& most, const std::function<bool()>& isStopped);

// The middle of the picture in that size, as much of it as covers it, under the veil that the texts need.
QImage fitPicture(const QImage& picture, const QSize& size, const FavesInks& inks);

}  // namespace vantrel

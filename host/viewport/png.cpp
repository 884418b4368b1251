// PNG through libpng's simplified interface.
#include "png.h"

#include <png.h>

namespace tvxhost::viewport {

using engine::Expected;
using engine::Outcome;
using engine::Reason;

namespace {

/// A png_image that is freed whatever happens.
struct Image : png_image
{
    Image() : png_image()
    {
        version = PNG_IMAGE_VERSION;
        format = PNG_FORMAT_RGB;
    }
    ~Image() { png_image_free(this); }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    Outcome failure() const { return {Reason::failed, message}; }
};

} // namespace

Expected<std::string> encodePng(const Picture& picture)
{
    if (picture.width <= 0 || picture.height <= 0)
        return Outcome(Reason::nullArgument, "the picture has no pixels");
    Image image;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    std::string bytes(PNG_IMAGE_PNG_SIZE_MAX(image), '\0');
    png_alloc_size_t size = bytes.size();
    if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, picture.bytes.data(), 0, nullptr))
        return image.failure();
    bytes.resize(size);
    return bytes;
}

Expected<Picture> decodePng(std::string_view bytes)
{
    Image image;
    if (!png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()))
        return image.failure();
    image.format = PNG_FORMAT_RGB;
    Picture picture(static_cast<int>(image.width), static_cast<int>(image.height));
    if (!png_image_finish_read(&image, nullptr, picture.bytes.data(), 0, nullptr))
        return image.failure();
    return picture;
}

} // namespace tvxhost::viewport

// PNG files through libpng's simplified interface.
#include "png.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>

#include <unistd.h>

namespace tvxhost::viewport {

using engine::Expected;
using engine::Outcome;
using engine::Reason;

namespace {

struct FileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

/// A png_image that is freed whatever happens.
struct Image : png_image
{
    Image() : png_image() { version = PNG_IMAGE_VERSION; }
    ~Image() { png_image_free(this); }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
};

Outcome cannot(const char* doWhat, const std::filesystem::path& file, const std::string& why)
{
    return {Reason::failed, std::string("cannot ") + doWhat + " picture \"" + file.string() + "\": " + why};
}

/// Removes a temporary file unless it got its final name.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::filesystem::path& target)
        : m_target(target), m_path(target.string() + "." + std::to_string(getpid()) + ".tmp")
    {
    }
    ~TemporaryFile()
    {
        std::error_code ignored;
        if (!m_kept)
            std::filesystem::remove(m_path, ignored);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::error_code keep()
    {
        std::error_code error;
        std::filesystem::rename(m_path, m_target, error);
        m_kept = !error;
        return error;
    }

private:
    std::filesystem::path m_target;
    std::filesystem::path m_path;
    bool m_kept = false;
};

} // namespace

Outcome writePng(const Picture& picture, const std::filesystem::path& target)
{
    if (picture.width <= 0 || picture.height <= 0)
        return cannot("write", target, "it has no pixels");
    TemporaryFile temporary(target);
    File file(std::fopen(temporary.path().c_str(), "wb"));
    if (!file)
        return cannot("write", target, std::strerror(errno));

    Image image;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    if (!png_image_write_to_stdio(&image, file.get(), 0, picture.bytes.data(), 0, nullptr))
        return cannot("write", target, image.message);
    if (std::fclose(file.release()) != 0)
        return cannot("write", target, std::strerror(errno));
    if (const std::error_code error = temporary.keep())
        return cannot("write", target, error.message());
    return {};
}

Expected<Picture> readPng(const std::filesystem::path& path)
{
    const File file(std::fopen(path.c_str(), "rb"));
    if (!file)
        return cannot("read", path, std::strerror(errno));
    Image image;
    if (!png_image_begin_read_from_stdio(&image, file.get()))
        return cannot("read", path, image.message);
    image.format = PNG_FORMAT_RGB;
    Picture picture(static_cast<int>(image.width), static_cast<int>(image.height));
    if (!png_image_finish_read(&image, nullptr, picture.bytes.data(), 0, nullptr))
        return cannot("read", path, image.message);
    return picture;
}

} // namespace tvxhost::viewport

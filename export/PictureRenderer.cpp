#include "export/PictureRenderer.h"

#include "export/ByteTarget.h"
#include "export/EpsHeader.h"

#include <QBuffer>
#include <QImage>
#include <cstdlib>
#include <string_view>

namespace {

/** What is written to a stream, in memory. */
class MemoryStream {
public:
    MemoryStream()
        : stream(open_memstream(&data, &size)) {}
    ~MemoryStream() {
        if (stream != nullptr) {
            std::fclose(stream);
        }
        std::free(data);
    }
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;

    /** Null when there is no memory. */
    std::FILE* get() const { return stream; }

    /** All that was written, empty when some of it did not find room. */
    std::string_view content() const {
        const bool whole = std::fflush(stream) == 0 && std::ferror(stream) == 0;
        return whole ? std::string_view(data, size) : std::string_view();
    }

private:
    char* data = nullptr;
    std::size_t size = 0;
    std::FILE* stream;
};

SbViewportRegion regionOf(const PictureRenderer::Size& size) {
    SbViewportRegion region;
    region.setWindowSize(size.pixels);
    region.setPixelsPerInch(static_cast<float>(size.dotsPerInch));
    return region;
}

bool write(std::string_view text, std::FILE* file) {
    return std::fwrite(text.data(), 1, text.size(), file) == text.size();
}

} // namespace

PictureRenderer::PictureRenderer(const Size& size, const Manner& manner)
    : pictureSize(size)
    , renderer(regionOf(size)) {
    renderer.setBackgroundColor(manner.background);
    renderer.getGLRenderAction()->setTransparencyType(manner.transparency);
}

bool PictureRenderer::render(SoNode& picture) {
    return renderer.render(&picture) != FALSE;
}

bool PictureRenderer::writePostScript(std::FILE* file) {
    const MemoryStream written;
    if (written.get() == nullptr || renderer.writeToPostScript(written.get()) == FALSE) {
        return false;
    }
    const auto corrected =
        EpsHeader::correct(written.content(), pictureSize.pixels, pictureSize.dotsPerInch);
    return corrected && write(corrected->header, file) && write(corrected->rest, file) &&
           std::fflush(file) == 0;
}

bool PictureRenderer::writePng(ByteTarget& target) const {
    constexpr int bytesPerPixel = 3;
    constexpr double inchesPerMetre = 1 / 0.0254;
    const int width = pictureSize.pixels[0];
    QImage image = QImage(renderer.getBuffer(), width, pictureSize.pixels[1], width * bytesPerPixel,
                          QImage::Format_RGB888)
                       .mirrored();
    const int dotsPerMetre = qRound(pictureSize.dotsPerInch * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    QBuffer buffer;
    if (!image.save(&buffer, "PNG")) {
        return false;
    }
    target.write(buffer.data().constData(), static_cast<std::size_t>(buffer.size()));
    return target.errorString().isEmpty();
}

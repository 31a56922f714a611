#include "platform/linux/views/ImagePeer.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace platform {

namespace fs = std::filesystem;

namespace {

// The format is that of the suffix: to find it out, Qt loads the plug-ins of all the others.
QImage read(const fs::path& file) {
    const QString name = QFile::decodeName(file.c_str());
    QImageReader reader(name, QFileInfo(name).suffix().toLatin1());
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

fs::path detailedVariantOf(const fs::path& file) {
    fs::path variant = file;
    variant.replace_filename(file.stem().concat("@2x").concat(file.extension().native()));
    return variant;
}

} // namespace

Image::Image(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Image::~Image() = default;

std::shared_ptr<Image> Image::withContentsOfFile(const fs::path& file) {
    QImage picture = read(file);
    if (picture.isNull()) {
        return nullptr;
    }
    return std::make_shared<Image>(std::make_unique<Peer>(
        Peer{.picture = std::move(picture), .detailed = read(detailedVariantOf(file))}));
}

bool Image::isTemplate() const {
    return peer_->isTemplate;
}

void Image::setTemplate(bool isTemplate) {
    peer_->isTemplate = isTemplate;
}

Size Image::size() const {
    return {.width = static_cast<double>(peer_->picture.width()),
            .height = static_cast<double>(peer_->picture.height())};
}

} // namespace platform

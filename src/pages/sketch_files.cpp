#include "pages/sketch_files.h"

#include "runtime/picture_twin.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QFileInfo>

#include <array>

namespace ferna {

namespace {

template <std::size_t N>
QString nth(const std::array<const char*, N>& files, int number) {
    if (number < 1 || number > static_cast<int>(N))
        throw RunTimeError(error::Subscript);
    return QString::fromLatin1(files[static_cast<std::size_t>(number - 1)]);
}

void save(const QString& folder, const QString& delivered, const QString& name) {
    const QString source = folder + u'/' + delivered;
    const QString target = folder + u'/' + name;
    writeFileWhole(target, readFileWhole(source), Lasting::UntilNextUse);
    if (QFileInfo::exists(twinPath(source)))
        writeFileWhole(twinPath(target), readFileWhole(twinPath(source)), Lasting::UntilNextUse);
}

} // namespace

QString deliveredAnchorSketch(Integer Typ_szkicu_kotwy) {
    return nth(std::array{"rys3f.bmp", "rys2pm.bmp", "rys2pd.bmp"}, Typ_szkicu_kotwy);
}

QString deliveredPlateSketch(int image) {
    return nth(std::array{"rysgb1.bmp", "rysgb2.bmp", "rysgb31.bmp", "rysgb32.bmp", "rysgb33.bmp",
                          "rysgb51.bmp", "rysgb52.bmp"},
               image);
}

void saveAnchorSketch(const QString& folder, Integer Typ_szkicu_kotwy) {
    save(folder, deliveredAnchorSketch(Typ_szkicu_kotwy), anchorSketchFile);
}

void savePlateSketch(const QString& folder, int image, const QString& name) {
    save(folder, deliveredPlateSketch(image), name);
}

} // namespace ferna

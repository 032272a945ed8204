#include "picture/localPictureModule.h"

#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"

const localPictureConverter* localPictureModuleLoad(std::u16string_view folder) {
    using Find = const localPictureConverter* (*)();
    // The names of the file and of its one function; they stand in the build and in the converter
    // too.
    const auto find = reinterpret_cast<Find>(localPlatform::loadLibraryFunction(
        localStd::pathJoin(folder, u"localPictureModule"), "localPictureConverterFind"));
    return find == nullptr ? nullptr : find();
}

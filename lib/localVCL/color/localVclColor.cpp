#include "localVCL/color/localVclColor.h"

#include "localPicture/color/localColorTable.h"

Qt::GlobalColor localVclColor(std::u16string_view name) {
    return static_cast<Qt::GlobalColor>(localColorTable::globalColorFind(name));
}

std::uint32_t localVclColorNumber(const QColor& color) {
    return color.rgb() & 0xFFFFFFU;
}

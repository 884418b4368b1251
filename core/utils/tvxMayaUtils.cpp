// Flags of new attributes.
#include "core/utils/tvxMayaUtils.h"

namespace tarvox::crowd {

void MayaUtils::setAttributeFlags(MFnAttribute& attribute, bool keyable, bool readable, bool writable,
                                  bool hidden, bool array, bool indexMatters)
{
    attribute.setKeyable(keyable);
    attribute.setReadable(readable);
    attribute.setWritable(writable);
    attribute.setHidden(hidden);
    attribute.setArray(array);
    attribute.setIndexMatters(indexMatters);
}

} // namespace tarvox::crowd

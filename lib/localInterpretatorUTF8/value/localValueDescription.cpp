#include "localInterpretatorUTF8/value/localValueDescription.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/value/localClassDeclaration.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localInterpretatorUTF8/value/localSlot.h"

std::int64_t localValueDescription::counterStaticTotal = 0;

namespace {

std::u16string cutForDump(std::u16string_view text) {
    return text.size() > 30 ? std::u16string(text.substr(0, 50)) + u"..." : std::u16string(text);
}

void destroy(localClassDeclaration* objClass, void* object) noexcept {
    int status = localErrorTypeOK;
    objClass->destroyObject(status, object);
}

// Objects whose last cell is gone. An object that holds others destroys them on its way; a long
// chain of holders would use up the stack, so destruction runs as a loop over this list and not as
// a recursion. It must not ask for memory either: an object brings its place in the list along, the
// list having room for all objects that cells hold at any time.
//
// It has no destructor: values of static duration go after it.
class DoomedObjects {
public:
    // Called for an object that its first cell is about to take.
    void makeRoom() {
        if (held_ == capacity_) {
            const std::size_t wider = std::max<std::size_t>(capacity_ * 2, 64);
            auto* const objects = new Object[wider];
            std::copy(objects_, objects_ + count_, objects);
            delete[] objects_;
            objects_ = objects;
            capacity_ = wider;
        }
        ++held_;
    }

    void add(localClassDeclaration* objClass, void* object) noexcept {
        if (held_ != 0) {
            --held_;
        }
        if (count_ == capacity_) {
            destroy(objClass, object);  // one whose links somebody counted past the cells
            return;
        }
        objects_[count_++] = {objClass, object};
        if (!destroying_) {
            destroying_ = true;
            while (count_ != 0) {
                const Object next = objects_[--count_];
                destroy(next.objClass, next.object);
            }
            destroying_ = false;
        }
    }

private:
    struct Object {
        localClassDeclaration* objClass;
        void* object;
    };

    Object* objects_ = nullptr;
    std::size_t count_ = 0;
    std::size_t capacity_ = 0;
    std::size_t held_ = 0;
    bool destroying_ = false;
};

constinit DoomedObjects doomed;

}  // namespace

bool localValueDescription::isLive() const {
    return type == localValueTypeOBJECT && pointer != nullptr && objClass != nullptr &&
           objClass->classImplementationLinkFunction != nullptr;
}

std::int64_t localValueDescription::objectLinks() const {
    void* object = pointer;
    return objClass->classImplementationLinkFunction(&object, 0);
}

void localValueDescription::addLink() noexcept {
    if (isLive()) {
        objClass->classImplementationLinkFunction(&pointer, 1);
    }
}

void localValueDescription::dropLink() noexcept {
    if (!isLive()) {
        return;
    }
    const localLinkFunction links = objClass->classImplementationLinkFunction;
    if (links(&pointer, 0) > 1) {
        links(&pointer, -1);
        return;
    }
    type = localValueTypeNUMBER;
    doomed.add(objClass, pointer);
}

void localValueDescription::objectBind(void* object, localClassDeclaration* declaration) {
    if (type == localValueTypeOBJECT && pointer == object) {
        objClass = declaration;
        return;
    }
    const bool isCounted = object != nullptr && declaration != nullptr &&
                           declaration->classImplementationLinkFunction != nullptr;
    if (isCounted && declaration->classImplementationLinkFunction(&object, 0) == 0) {
        const auto goes = [declaration](void* unheld) { destroy(declaration, unheld); };
        std::unique_ptr<void, decltype(goes)> unheld(object, goes);
        doomed.makeRoom();
        static_cast<void>(unheld.release());
    }
    reset();
    type = localValueTypeOBJECT;
    pointer = object;
    objClass = declaration;
    addLink();
}

localText localValueDescription::toString() const {
    switch (type) {
        case localValueTypeNUMBER:
            return numberToString(num);
        case localValueTypeSTRING:
            return wStr;
        case localValueTypeBOOLEAN:
            return num == 0.0 ? u"ЛОЖЬ" : u"ИСТИНА";
        case localValueTypeOBJECT: {
            int status = localErrorTypeOK;
            const localArguments none;
            localSlot result;
            void* object = pointer;
            const bool done =
                objClass != nullptr &&
                objClass->methodRun(status, nullptr, object, u"toString", &none, result.asResult());
            return done ? result->wStr : localText();
        }
        default:
            return u" **** Error *** при вызове метода toString() ";
    }
}

double localValueDescription::toNumber() const {
    switch (type) {
        case localValueTypeNUMBER:
            return num;
        case localValueTypeSTRING:
            return numberFromText(wStr);
        case localValueTypeBOOLEAN:
            return num == 0.0 ? 0.0 : 1.0;
        case localValueTypeOBJECT: {
            // The text of the cell's own address, read as a number. It means nothing and does not
            // fail.
            char address[32];
            std::snprintf(address, sizeof address, "%p", static_cast<const void*>(this));
            return std::atof(address);
        }
        default:
            return 0.0;
    }
}

std::u16string localValueDescription::typeName() const {
    switch (type) {
        case localValueTypeNUMBER:
            return u"ЧИСЛО";
        case localValueTypeSTRING:
            return u"СТРОКА";
        case localValueTypeBOOLEAN:
            return u"БУЛЕВО";
        case localValueTypeOBJECT:
            return objClass == nullptr ? u"ОБЪЕКТ" : objClass->nameRus;
        default:
            return u"неизвестный тип";
    }
}

std::u16string localValueDescription::dump() const {
    std::u16string text = u" address: [" + addressText(this) + u"]  Type: [" + typeName() + u"] ";
    if (type == localValueTypeOBJECT) {
        text += u" className: [" + (objClass == nullptr ? u"<unknown class>" : objClass->nameEng) +
                u"] ";
    }
    text += u" num: [" + numberToString(num) + u"]  pointer: [" + addressText(pointer) +
            u"]  wStr: [" + cutForDump(wStr) + u"]  Val: [" + cutForDump(toString()) + u"] ";
    return text;
}

bool localValueDescription::valueMethodExec(int& status, localContextUTF8* context,
                                            std::u16string_view name, const localArguments* args,
                                            localValueDescription*& result) const {
    if (type != localValueTypeOBJECT) {
        status = localErrorTypeNOTOBJECT;
        return false;
    }
    if (objClass == nullptr) {
        status = localErrorTypeCLASSUNKNOWN;
        return false;
    }
    void* object = pointer;
    return objClass->methodExec(status, context, object, name, args, result);
}

bool localValueDescription::getAttr(int& status, localContextUTF8* context,
                                    std::u16string_view name,
                                    localValueDescription*& result) const {
    if (result != nullptr) {
        exit_FAILURE(u"localContextUTF8localValueDescription::getAttr() result must be NULL!");
    }
    localSlot slot = localSlot::reserve();
    bool done = false;
    if (type != localValueTypeOBJECT) {
        status = localErrorTypeNOTOBJECT;
    } else if (objClass == nullptr) {
        status = localErrorTypeCLASSUNKNOWN;
    } else {
        void* object = pointer;
        localSlot value;
        done = objClass->attrGet(status, context, object, localUpperName(name), value.asResult());
        if (done) {
            slot->take(*value);
        }
    }
    result = slot.handOver();
    return done;
}

bool localValueDescription::setAttr(int& status, localContextUTF8* context,
                                    std::u16string_view name,
                                    const localValueDescription* newValue) {
    if (type != localValueTypeOBJECT) {
        status = localErrorTypeNOTOBJECT;
        return false;
    }
    if (objClass == nullptr) {
        status = localErrorTypeCLASSUNKNOWN;
        return false;
    }
    return objClass->attrSet(status, context, pointer, localUpperName(name), newValue);
}

void localValueDescription::release(localValueDescription* value) {
    if (value->linkCounter == 0) {
        exit_FAILURE(u"Error!!!  linkCounter cannot be negative!");
    }
    if (value->linkCounter == 1) {
        value->reset();
    }
    if (--value->linkCounter == 0) {
        localMemoryManager::manager->slotFreed(value);
    }
}

std::u16string addressText(const void* address) {
    char digits[2 * sizeof(void*)];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, reinterpret_cast<std::uintptr_t>(address), 16)
            .ptr;
    return u"0x" + std::u16string(digits, end);
}

bool isClass(const localValueDescription& value, std::u16string_view nameEng) {
    return value.type == localValueTypeOBJECT && value.pointer != nullptr &&
           value.objClass != nullptr && value.objClass->nameEng == nameEng;
}

bool isClass(const localValueDescription& value, const localClassDeclaration& declaration) {
    return isClass(value, declaration.nameEng);
}

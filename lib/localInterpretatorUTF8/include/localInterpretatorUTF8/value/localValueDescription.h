// The one value cell of the language: every variable, argument, result, element of a list and cell
// of a table. A cell is dynamically typed, holds one of four kinds of content, and releases the
// object it refers to.
//
// Cells live in the slot store of localMemoryManager, where linkCounter counts their holders, or
// embedded by value in containers and temporaries, where it stays 0. Heap objects count the cells
// that hold them in a counter of their own, which only the class's link function reaches. Both
// counts are exact at all times; there is no other collection, so two objects that refer to each
// other are never destroyed.
//
// There is no undefined value: a cell that was never assigned is the number 0.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "localInterpretatorUTF8/text/localText.h"

class localClassDeclaration;
class localContextUTF8;
class localValueDescription;

enum localValueType : std::int32_t {
    localValueTypeNUMBER = 0,
    localValueTypeSTRING = 1,
    localValueTypeBOOLEAN = 2,
    localValueTypeOBJECT = 3,
};

// The arguments of a call, in order. The caller keeps the links.
using localArguments = std::span<localValueDescription* const>;

class localValueDescription final {
public:
    // Live cells, slots included.
    static std::int64_t counterStaticTotal;

    localValueDescription() noexcept { ++counterStaticTotal; }
    localValueDescription(const localValueDescription& source) noexcept
        : type(source.type),
          objClass(source.objClass),
          num(source.num),
          pointer(source.pointer),
          wStr(source.wStr) {
        ++counterStaticTotal;
        if (type == localValueTypeOBJECT) {
            addLink();
        }
    }
    // The content moves without touching the object's count; the source becomes the number 0.
    localValueDescription(localValueDescription&& source) noexcept {
        ++counterStaticTotal;
        take(source);
    }
    ~localValueDescription() {
        --counterStaticTotal;
        reset();
    }
    // Copying is assign() by name, for its order of release and take matters.
    localValueDescription& operator=(const localValueDescription&) = delete;

    // Holds a counted object: an object whose class has a link function. Objects of other classes
    // are never counted and never destroyed through a value.
    bool isLive() const;

    // Lets go of the object, running the class's "~" when this was its last cell, and becomes the
    // number 0. Class, pointer and text keep their old content on purpose: every writer overwrites
    // them.
    void reset() noexcept {
        if (type == localValueTypeOBJECT) {
            dropLink();
        }
        type = localValueTypeNUMBER;
        num = 0.0;
    }

    // The value copy used everywhere, also by "=": reset(), copy all content, one more object link.
    // Not guarded against itself: a cell that is the last holder of its object and is assigned to
    // itself destroys the object. Meant.
    void assign(const localValueDescription& source) noexcept {
        reset();
        type = source.type;
        num = source.num;
        objClass = source.objClass;
        pointer = source.pointer;
        wStr = source.wStr;
        if (type == localValueTypeOBJECT) {
            addLink();
        }
    }

    // As assign() from a source that then becomes the number 0, with no change of the object's
    // count.
    void take(localValueDescription& source) noexcept {
        reset();
        type = source.type;
        num = source.num;
        objClass = source.objClass;
        pointer = source.pointer;
        wStr = std::move(source.wStr);
        source.type = localValueTypeNUMBER;
        source.num = 0.0;
    }

    void setVal(double number) noexcept {
        reset();
        num = number;
    }
    void setVal(localText text) noexcept {
        reset();
        type = localValueTypeSTRING;
        wStr = std::move(text);
    }
    void setBoolean(bool value) noexcept {
        reset();
        type = localValueTypeBOOLEAN;
        num = value ? 1.0 : 0.0;
    }

    // Holds an object. A cell that has the same object already only changes its class; otherwise
    // the object gains a link, so that a new object, made with count 0, reaches 1 here. A new
    // object asks for memory here, for the sake of its end; one that cannot be held is destroyed.
    void objectBind(void* object, localClassDeclaration* declaration);

    // Number: its text. String: itself. Boolean: "ЛОЖЬ" for 0, else "ИСТИНА". Object: what its
    // method "toString" answers, empty when the call fails; memory that runs out in there is no
    // failure but goes on to the caller.
    localText toString() const;
    // Number: itself. String: as atof. Boolean: 1 or 0. Object: nothing of meaning.
    double toNumber() const;
    // "ЧИСЛО", "СТРОКА", "БУЛЕВО", an object's Russian class name or "ОБЪЕКТ", else "неизвестный
    // тип".
    std::u16string typeName() const;
    // All fields on one line, for the memory listings. Long texts are cut to 50 code units and
    // "...".
    std::u16string dump() const;

    // Calls a method of the object held. `result` must be null; the slot it gets belongs to the
    // caller, also on failure. Status 51 when no object is held, 14 when it has no class, and what
    // the call sets.
    bool valueMethodExec(int& status, localContextUTF8* context, std::u16string_view name,
                         const localArguments* args, localValueDescription*& result) const;
    // Reads an attribute of the object held, under the same rules. Halts on a non-null `result`.
    bool getAttr(int& status, localContextUTF8* context, std::u16string_view name,
                 localValueDescription*& result) const;
    // Writes an attribute of the object held. Status 51 when none is held.
    bool setAttr(int& status, localContextUTF8* context, std::u16string_view name,
                 const localValueDescription* newValue);

    // The object's count, for the listing; only of a live object.
    std::int64_t objectLinks() const;

    // Gives one link of a slot back; the last one resets the value and frees the slot. Halts when
    // no link is left.
    static void release(localValueDescription* value);

    std::uint32_t linkCounter = 0;
    std::int32_t type = localValueTypeNUMBER;
    localClassDeclaration* objClass = nullptr;
    double num = 0.0;
    void* pointer = nullptr;
    localText wStr;

private:
    void addLink() noexcept;
    void dropLink() noexcept;
};

// An address as listings show it: hexadecimal with "0x".
std::u16string addressText(const void* address);

// True when the value holds an object of a class with this English name. Equal names count, not
// equal declarations.
bool isClass(const localValueDescription& value, std::u16string_view nameEng);
bool isClass(const localValueDescription& value, const localClassDeclaration& declaration);

#include "localInterpretatorUTF8/value/localLiveObject.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

namespace {

using Kind = localLiveObject::Kind;

struct Form {
    char title[40] = {};
    localLiveObject alive{this, Kind::form};
};

TEST(localLiveObject, anObjectStandsAsLongAsItLives) {
    const std::size_t before = localLiveObject::count();
    const void* address = nullptr;
    {
        const Form form;
        address = &form;
        EXPECT_TRUE(localLiveObject::stands(address, Kind::form));
        EXPECT_EQ(localLiveObject::count(), before + 1);
    }
    EXPECT_FALSE(localLiveObject::stands(address, Kind::form));
    EXPECT_EQ(localLiveObject::count(), before);
    EXPECT_FALSE(localLiveObject::stands(nullptr, Kind::form));
}

TEST(localLiveObject, anObjectIsFoundByItsKindOnly) {
    const Form form;
    EXPECT_FALSE(localLiveObject::stands(&form, Kind::scope));
    EXPECT_FALSE(localLiveObject::stands(&form, Kind::window));
    const localLiveObject asWindow(&form, Kind::window);
    EXPECT_TRUE(localLiveObject::stands(&form, Kind::form));
    EXPECT_TRUE(localLiveObject::stands(&form, Kind::window));
    EXPECT_FALSE(localLiveObject::stands(&form.title[1], Kind::form));
}

TEST(localLiveObject, anObjectIsToldFromTheOneBeforeAtItsAddress) {
    alignas(Form) unsigned char place[sizeof(Form)];
    auto* form = new (place) Form;
    const std::uint64_t first = localLiveObject::number(place, Kind::form);
    EXPECT_NE(first, 0U);
    EXPECT_EQ(localLiveObject::number(place, Kind::form), first);
    EXPECT_EQ(localLiveObject::number(place, Kind::scope), 0U);
    form->~Form();
    EXPECT_EQ(localLiveObject::number(place, Kind::form), 0U);
    form = new (place) Form;
    EXPECT_GT(localLiveObject::number(place, Kind::form), first);
    form->~Form();
}

TEST(localLiveObject, manyObjectsGoInAnyOrder) {
    const std::size_t before = localLiveObject::count();
    std::vector<std::unique_ptr<Form>> forms;
    for (int i = 0; i < 20000; ++i) {
        forms.push_back(std::make_unique<Form>());
    }
    EXPECT_EQ(localLiveObject::count(), before + forms.size());
    std::mt19937 random(7);
    std::shuffle(forms.begin(), forms.end(), random);
    std::vector<const void*> gone;
    for (std::size_t i = 0; i < forms.size(); i += 2) {
        gone.push_back(forms[i].get());
        forms[i].reset();
    }
    for (std::size_t i = 1; i < forms.size(); i += 2) {
        ASSERT_TRUE(localLiveObject::stands(forms[i].get(), Kind::form)) << i;
    }
    for (const void* const address : gone) {
        ASSERT_FALSE(localLiveObject::stands(address, Kind::form));
    }
    forms.clear();
    EXPECT_EQ(localLiveObject::count(), before);
}

}  // namespace

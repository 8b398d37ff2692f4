// Every field of the file is as the system's own writers fill it: its readers rely on some that other readers
// never look at.
#include "RawLibrary.h"

#include <oaidl.h>

#include <gtest/gtest.h>
#include <oleauto.h>

#include <algorithm>
#include <map>
#include <set>

namespace quillet {
namespace {

constexpr unsigned kInherited = 7; // functions of IUnknown and IDispatch
constexpr unsigned kPointer = sizeof(void*);

bool isDual(RawType const& type) { return type.flags & TYPEFLAG_FDUAL; }
bool isEvents(RawType const& type) { return type.kind == TKIND_DISPATCH && !isDual(type); }

class RawFields : public testing::Test {
protected:
    RawLibrary const library = rawLibrary();
};

TEST_F(RawFields, linkTheFunctionsOfEachMemberInARing)
{
    for (RawType const& type : library.types) {
        std::map<std::uint32_t, std::vector<unsigned>> members;
        for (unsigned i = 0; i < type.functions.size(); ++i)
            members[type.functions[i].identifier].push_back(i);
        for (auto const& [identifier, functions] : members) {
            std::vector<unsigned> walked;
            unsigned next = functions.front();
            do {
                walked.push_back(next);
                next = type.functions.at(next).next;
            } while (next != functions.front() && walked.size() <= functions.size());
            std::ranges::sort(walked);
            EXPECT_EQ(walked, functions) << type.name << "." << type.functions[functions.front()].name;
        }
    }
}

TEST_F(RawFields, countTheResultsOfEachFunction)
{
    for (RawType const& type : library.types)
        for (RawFunction const& function : type.functions) {
            auto const isResult = [](RawParameter const& each) { return each.flags & PARAMFLAG_FRETVAL; };
            EXPECT_EQ(function.results, std::ranges::count_if(function.parameters, isResult))
                << type.name << "." << function.name;
        }
}

TEST_F(RawFields, numberTheTypesAndTheirFunctions)
{
    ASSERT_EQ(library.types.size(), 24U);
    for (unsigned i = 0; i < library.types.size(); ++i) {
        EXPECT_EQ(library.types[i].index, i);
        for (unsigned k = 0; k < library.types[i].functions.size(); ++k)
            EXPECT_EQ(library.types[i].functions[k].index, k) << library.types[i].name;
    }
}

TEST_F(RawFields, markTheDualInterfacesAndNoOthers)
{
    for (RawType const& type : library.types)
        EXPECT_EQ(type.dual, isDual(type)) << type.name;
}

TEST_F(RawFields, bearTheMarkOfEveryType)
{
    for (RawType const& type : library.types)
        EXPECT_TRUE(type.everyTypesMark) << type.name;
}

TEST_F(RawFields, alignWhatHoldsPointersByTheirSize)
{
    for (RawType const& type : library.types) {
        bool const holdsPointers = type.kind == TKIND_DISPATCH || type.kind == TKIND_ALIAS;
        for (unsigned const alignment : type.alignments)
            EXPECT_EQ(alignment, holdsPointers ? kPointer : 4U) << type.name;
    }
}

TEST_F(RawFields, tellWhatADualInterfaceInheritsAndNothingOfOthers)
{
    for (RawType const& type : library.types)
        EXPECT_EQ(type.second, isDual(type) ? 0x70002U : 0U)
            << type.name; // seven functions of two interfaces
}

TEST_F(RawFields, placeTheFunctionsOfADualInterfaceBehindTheInherited)
{
    for (RawType const& type : library.types) {
        if (!isDual(type))
            continue;
        EXPECT_EQ(type.implemented, 1U) << type.name;
        EXPECT_EQ(type.tableSize, (kInherited + type.functions.size()) * kPointer) << type.name;
        for (unsigned i = 0; i < type.functions.size(); ++i)
            EXPECT_EQ(type.functions[i].tableOffset, (kInherited + i) * kPointer) << type.name;
    }
}

TEST_F(RawFields, giveEventInterfacesEightFunctionsAndNoBase)
{
    EXPECT_EQ(std::ranges::count_if(library.types, isEvents), 5);
    for (RawType const& type : library.types) {
        if (!isEvents(type))
            continue;
        EXPECT_EQ(type.functions.size(), 8U) << type.name;
        EXPECT_EQ(type.implemented, 1U) << type.name;
        EXPECT_EQ(type.first, kNowhere) << type.name;
        EXPECT_EQ(type.tableSize, 8 * kPointer) << type.name;
        for (unsigned i = 0; i < type.functions.size(); ++i)
            EXPECT_EQ(type.functions[i].tableOffset, i * kPointer) << type.name;
    }
}

TEST_F(RawFields, sizeAnEnumerationAs32BitsOnEverySystem)
{
    for (RawType const& type : library.types)
        EXPECT_EQ(type.size, type.kind == TKIND_ENUM ? 4U : kPointer) << type.name;
}

TEST_F(RawFields, nameTheFirstTypeThatHasAMemberOrIsOfAName)
{
    std::map<std::string, std::uint32_t> owners;
    for (RawType const& type : library.types)
        owners.emplace(type.name, type.offset);
    for (RawType const& type : library.types) {
        for (RawFunction const& function : type.functions)
            owners.emplace(function.name, type.offset);
        for (std::string const& constant : type.constants)
            owners.emplace(constant, type.offset);
    }
    for (RawName const& name : library.names) {
        auto const owner = owners.find(name.text);
        EXPECT_EQ(name.owner, owner == owners.end() ? kNowhere : owner->second) << name.text;
    }
}

TEST_F(RawFields, flagTheNamesOfTypesAndOfConstants)
{
    std::map<std::string, unsigned> flags;
    for (RawType const& type : library.types) {
        flags[type.name] = 0x38;
        for (std::string const& constant : type.constants)
            flags[constant] = flags.contains(constant) ? 0x20 : 0x30; // one enumeration's, or of several
    }
    EXPECT_EQ(flags.size(), 24U + 7U);
    for (RawName const& name : library.names)
        EXPECT_EQ(name.flags, flags[name.text]) << name.text;
}

TEST_F(RawFields, hashEveryNameInTheLanguageThatTheHeaderTells)
{
    SYSKIND const system = kPointer == 8 ? SYS_WIN64 : SYS_WIN32;
    EXPECT_EQ(library.language, 0x409U);
    for (RawName const& name : library.names)
        EXPECT_EQ(name.hash, LOWORD(::LHashValOfNameSysA(system, library.language, name.text.c_str())))
            << name.text;
}

TEST_F(RawFields, chainEveryNameOnceByItsHash)
{
    std::set<std::uint32_t> found;
    std::map<std::uint32_t, RawName const*> names;
    for (RawName const& name : library.names)
        names[name.offset] = &name;
    for (unsigned i = 0; i < library.chains.size(); ++i)
        for (std::uint32_t const offset : library.chains[i]) {
            ASSERT_TRUE(names.contains(offset));
            EXPECT_EQ(names[offset]->hash % 128, i) << names[offset]->text;
            EXPECT_TRUE(found.insert(offset).second) << names[offset]->text;
        }
    EXPECT_EQ(found.size(), names.size());
}

TEST_F(RawFields, fillTheFileWithoutGaps) { EXPECT_TRUE(library.whole); }

} // namespace
} // namespace quillet

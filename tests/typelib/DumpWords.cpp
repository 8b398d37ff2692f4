// The words in which library.txt speaks of flags, names and texts.
#include "DumpWords.h"

#include "base/RunTimeError.h"

namespace quillet {

namespace {

struct FlagName {
    unsigned flag;
    char const* name;
};

constexpr FlagName kLibraryFlags[] = {{LIBFLAG_FRESTRICTED, "restricted"},
                                      {LIBFLAG_FCONTROL, "control"},
                                      {LIBFLAG_FHIDDEN, "hidden"},
                                      {LIBFLAG_FHASDISKIMAGE, "hasdiskimage"}};

constexpr FlagName kTypeFlags[] = {{TYPEFLAG_FAPPOBJECT, "appobject"},
                                   {TYPEFLAG_FCANCREATE, "cancreate"},
                                   {TYPEFLAG_FLICENSED, "licensed"},
                                   {TYPEFLAG_FPREDECLID, "predeclid"},
                                   {TYPEFLAG_FHIDDEN, "hidden"},
                                   {TYPEFLAG_FCONTROL, "control"},
                                   {TYPEFLAG_FDUAL, "dual"},
                                   {TYPEFLAG_FNONEXTENSIBLE, "nonextensible"},
                                   {TYPEFLAG_FOLEAUTOMATION, "oleautomation"},
                                   {TYPEFLAG_FRESTRICTED, "restricted"},
                                   {TYPEFLAG_FAGGREGATABLE, "aggregatable"},
                                   {TYPEFLAG_FREPLACEABLE, "replaceable"},
                                   {TYPEFLAG_FDISPATCHABLE, "dispatchable"},
                                   {TYPEFLAG_FREVERSEBIND, "reversebind"},
                                   {TYPEFLAG_FPROXY, "proxy"}};

constexpr FlagName kFunctionFlags[] = {{FUNCFLAG_FRESTRICTED, "restricted"},
                                       {FUNCFLAG_FSOURCE, "source"},
                                       {FUNCFLAG_FBINDABLE, "bindable"},
                                       {FUNCFLAG_FREQUESTEDIT, "requestedit"},
                                       {FUNCFLAG_FDISPLAYBIND, "displaybind"},
                                       {FUNCFLAG_FDEFAULTBIND, "defaultbind"},
                                       {FUNCFLAG_FHIDDEN, "hidden"},
                                       {FUNCFLAG_FUSESGETLASTERROR, "usesgetlasterror"},
                                       {FUNCFLAG_FDEFAULTCOLLELEM, "defaultcollelem"},
                                       {FUNCFLAG_FUIDEFAULT, "uidefault"},
                                       {FUNCFLAG_FNONBROWSABLE, "nonbrowsable"},
                                       {FUNCFLAG_FREPLACEABLE, "replaceable"},
                                       {FUNCFLAG_FIMMEDIATEBIND, "immediatebind"}};

template <std::size_t n> std::string flagNames(FlagName const (&table)[n], unsigned flags)
{
    std::string result;
    for (FlagName const& row : table)
        if (flags & row.flag)
            result += std::string(" ") + row.name;
    return result;
}

} // namespace

std::string libraryFlagNames(unsigned flags) { return flagNames(kLibraryFlags, flags); }
std::string typeFlagNames(unsigned flags) { return flagNames(kTypeFlags, flags); }
std::string functionFlagNames(unsigned flags) { return flagNames(kFunctionFlags, flags); }

std::string narrow(std::wstring_view text) { return {text.begin(), text.end()}; }

std::string quoted(std::wstring_view text)
{
    std::string result = "\"";
    result += narrow(text);
    result += "\"";
    return result;
}

std::string guidText(GUID const& id)
{
    wchar_t text[40];
    ::StringFromGUID2(id, text, 40);
    return narrow(text);
}

std::string nameOf(ITypeInfo& info, MEMBERID member)
{
    Bstr name;
    check(info.GetDocumentation(member, name.put(), nullptr, nullptr, nullptr));
    return narrow(name.view());
}

Bstr helpOf(ITypeInfo& info, MEMBERID member)
{
    Bstr help;
    check(info.GetDocumentation(member, nullptr, help.put(), nullptr, nullptr));
    return help;
}

std::string nameOfLibrary(ITypeLib& library)
{
    Bstr name;
    check(library.GetDocumentation(-1, name.put(), nullptr, nullptr, nullptr));
    return narrow(name.view());
}

} // namespace quillet

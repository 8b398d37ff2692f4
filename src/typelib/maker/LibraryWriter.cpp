// Writes the type library's file from its descriptions.
#include "typelib/maker/LibraryWriter.h"

#include "base/HelpFile.h"
#include "base/RunTimeError.h"
#include "typelib/Guids.h"
#include "typelib/Texts.h"
#include "typelib/maker/DescriptionWriter.h"

#include <oleauto.h>

namespace quillet {

namespace {

TYPEKIND typeKindOf(DescriptionKind kind)
{
    switch (kind) {
    case DescriptionKind::Interface:
        return TKIND_INTERFACE; // with the dual flag it is both
    case DescriptionKind::Class:
        return TKIND_COCLASS;
    case DescriptionKind::Alias:
        return TKIND_ALIAS;
    case DescriptionKind::Events:
        return TKIND_DISPATCH;
    case DescriptionKind::Enumeration:
        return TKIND_ENUM;
    }
    return TKIND_MAX;
}

void writeHeader(ICreateTypeLib2& library)
{
    check(library.SetName(mutableText(kLibraryName)));
    check(library.SetDocString(mutableText(kLibraryText)));
    check(library.SetGuid(kLibraryId));
    check(library.SetVersion(1, 0));
    check(library.SetLcid(LOCALE_NEUTRAL));
    check(library.SetHelpFileName(mutableText(kHelpFile)));
    check(library.SetLibFlags(LIBFLAG_FCONTROL | LIBFLAG_FHASDISKIMAGE));
}

ComPtr<ICreateTypeInfo> addDescription(ICreateTypeLib2& library, Description const& row)
{
    ComPtr<ICreateTypeInfo> type;
    check(library.CreateTypeInfo(mutableText(row.name), typeKindOf(row.kind), type.put()));
    check(type->SetGuid(row.id));
    check(type->SetVersion(1, 0));
    if (row.help)
        check(type->SetDocString(mutableText(row.help)));
    return type;
}

} // namespace

void writeLibrary(SYSKIND system, wchar_t const* file)
{
    TypeNames names;
    ComPtr<ICreateTypeLib2> library;
    check(::CreateTypeLib2(system, file, library.put()));
    writeHeader(*library.get());

    // All exist before the first is filled in: they name one another in both directions.
    std::vector<ComPtr<ICreateTypeInfo>> types;
    for (Description const& row : descriptions()) {
        types.push_back(addDescription(*library.get(), row));
        names.add(row.name, types.back().as<ITypeInfo>());
    }
    for (std::size_t i = 0; i < types.size(); ++i)
        writeDescription(types[i], descriptions()[i], names);
    check(library->SaveAllChanges());
}

} // namespace quillet

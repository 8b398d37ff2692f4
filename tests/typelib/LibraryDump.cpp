// Reads a type library back and describes it line by line, in the words of library.txt.
#include "LibraryDump.h"

#include "Borrowed.h"
#include "DumpWords.h"
#include "RawLibrary.h"

#include <algorithm>

namespace quillet {

namespace {

class Describer {
public:
    explicit Describer(ITypeLib& library) : m_library(library), m_ownName(nameOfLibrary(library)) {}

    std::vector<std::string> run()
    {
        for (UINT i = 0; i < m_library.GetTypeInfoCount(); ++i)
            describeType(i);
        std::vector<std::string> result = header();
        for (std::string const& import : m_imports)
            result.push_back("imports " + import);
        result.insert(result.end(), m_lines.begin(), m_lines.end());
        return result;
    }

private:
    std::vector<std::string> header()
    {
        LibraryAttributes const attributes(m_library);
        Bstr text;
        Bstr helpFile;
        check(m_library.GetDocumentation(-1, nullptr, text.put(), nullptr, helpFile.put()));
        // The system may put a folder before the help file's name.
        std::wstring_view file = helpFile.view();
        file.remove_prefix(file.rfind(L'\\') + 1);
        return {format("library %s version %u.%u locale %lu%s %s", m_ownName.c_str(),
                       attributes->wMajorVerNum, attributes->wMinorVerNum, attributes->lcid,
                       libraryFlagNames(attributes->wLibFlags).c_str(), guidText(attributes->guid).c_str()),
                "    " + quoted(text.view()) + " helpfile " + quoted(file)};
    }

    void describeType(UINT index)
    {
        ComPtr<ITypeInfo> info;
        check(m_library.GetTypeInfo(index, info.put()));
        TypeAttributes const attributes(*info.get());
        m_topic = topicOf(*info.get(), MEMBERID_NIL);
        m_lines.push_back(
            format("%u %s%s version %u.%u %s topic %lu", index, headOf(*info.get(), *attributes).c_str(),
                   typeFlagNames(typeFlags(*info.get(), *attributes)).c_str(), attributes->wMajorVerNum,
                   attributes->wMinorVerNum, guidText(attributes->guid).c_str(), m_topic));
        addHelp(helpOf(*info.get()));
        if (attributes->typekind == TKIND_DISPATCH)
            describeInterface(*info.get(), index, isDual(*attributes));
        if (attributes->typekind == TKIND_COCLASS)
            describeClass(*info.get(), attributes->cImplTypes);
        if (attributes->typekind == TKIND_ENUM)
            describeEnumeration(*info.get(), attributes->cVars);
    }

    static bool isDual(TYPEATTR const& attributes) { return attributes.wTypeFlags & TYPEFLAG_FDUAL; }

    /// The description of a dual interface for late binding hides that it is compatible with automation.
    static unsigned typeFlags(ITypeInfo& info, TYPEATTR const& attributes)
    {
        return isDual(attributes) ? TypeAttributes(*vtableView(info).get())->wTypeFlags
                                  : attributes.wTypeFlags;
    }

    std::string headOf(ITypeInfo& info, TYPEATTR const& attributes)
    {
        constexpr std::pair<TYPEKIND, char const*> kKinds[] = {{TKIND_DISPATCH, "dispatch "},
                                                               {TKIND_COCLASS, "coclass "},
                                                               {TKIND_ALIAS, "alias "},
                                                               {TKIND_ENUM, "enum "}};
        std::string const target =
            attributes.typekind == TKIND_ALIAS ? " of " + typeName(info, attributes.tdescAlias) : "";
        for (auto const& [known, word] : kKinds)
            if (attributes.typekind == known)
                return word + nameOf(info) + target;
        return format("kind %d ", attributes.typekind) + nameOf(info);
    }

    void describeInterface(ITypeInfo& info, UINT index, bool dual)
    {
        noteBase(info);
        ComPtr<ITypeInfo> const members = dual ? vtableView(info) : ComPtr<ITypeInfo>(&info);
        std::vector<RawFunction> const& raw = m_raw.types[index].functions;
        for (UINT i = 0; i < TypeAttributes(*members.get())->cFuncs; ++i) {
            FunctionDescription const function(*members.get(), i);
            std::string const slot =
                dual ? format("%2d ", function->oVft / static_cast<int>(sizeof(void*))) : "";
            m_lines.push_back("    " + slot + functionText(*members.get(), *function, raw.at(i)));
            addHelp(helpOf(*members.get(), function->memid));
            noteOtherTopic(topicOf(*members.get(), function->memid));
        }
    }

    std::string functionText(ITypeInfo& info, FUNCDESC const& function, RawFunction const& raw)
    {
        std::string const id = format(function.memid < 100 ? "%ld" : "&H%08lX", function.memid);
        return id + " " + kindOf(function) + " " + nameOf(info, function.memid) +
               parametersOf(info, function, raw) + functionFlagNames(function.wFuncFlags) +
               oddities(function);
    }

    static std::string kindOf(FUNCDESC const& function)
    {
        if (function.funckind == FUNC_DISPATCH)
            return function.invkind == INVOKE_FUNC ? "event" : "late-bound property";
        constexpr std::pair<INVOKEKIND, char const*> kKinds[] = {{INVOKE_FUNC, "method"},
                                                                 {INVOKE_PROPERTYGET, "get"},
                                                                 {INVOKE_PROPERTYPUT, "put"},
                                                                 {INVOKE_PROPERTYPUTREF, "putref"}};
        for (auto const& [known, word] : kKinds)
            if (function.invkind == known)
                return word;
        return "unknown";
    }

    /// What no function of ours has.
    static std::string oddities(FUNCDESC const& function)
    {
        VARTYPE const expected = function.funckind == FUNC_DISPATCH ? VARTYPE{VT_VOID} : VARTYPE{VT_HRESULT};
        std::string result;
        if (function.elemdescFunc.tdesc.vt != expected)
            result += format(" returning type %d", function.elemdescFunc.tdesc.vt);
        if (function.callconv != CC_STDCALL)
            result += format(" calling convention %d", function.callconv);
        if (function.cParamsOpt != 0)
            result += format(" %d optional", function.cParamsOpt);
        return result;
    }

    std::string parametersOf(ITypeInfo& info, FUNCDESC const& function, RawFunction const& raw)
    {
        std::vector<std::string> names = parameterNames(info, function);
        bool const isSetter = function.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF);
        if (isSetter)
            names.back() = raw.parameters.back().name; // the system's interfaces do not tell it
        std::string list;
        std::string result;
        for (SHORT i = 0; i < function.cParams; ++i) {
            ELEMDESC const& parameter = function.lprgelemdescParam[i];
            if (parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL)
                result = resultText(info, parameter, names[static_cast<std::size_t>(i)]);
            else
                list += (list.empty() ? "" : ", ") +
                        parameterText(info, parameter, names[static_cast<std::size_t>(i)]);
        }
        return (function.invkind == INVOKE_PROPERTYGET ? list : "(" + list + ")") + result;
    }

    static std::vector<std::string> parameterNames(ITypeInfo& info, FUNCDESC const& function)
    {
        BSTR names[8] = {};
        UINT count = 0;
        check(info.GetNames(function.memid, names, 8, &count));
        std::vector<std::string> result;
        for (UINT i = 0; i < count; ++i) {
            Bstr const name = Bstr::adopt(names[i]);
            if (i > 0)
                result.push_back(narrow(name.view()));
        }
        result.resize(static_cast<std::size_t>(function.cParams));
        return result;
    }

    std::string resultText(ITypeInfo& info, ELEMDESC const& parameter, std::string const& name)
    {
        TYPEDESC const& type = parameter.tdesc;
        if (type.vt != VT_PTR || parameter.paramdesc.wParamFlags != (PARAMFLAG_FOUT | PARAMFLAG_FRETVAL))
            return " odd result";
        return (name.empty() ? " As " : " " + name + " As ") + typeName(info, *type.lptdesc);
    }

    std::string parameterText(ITypeInfo& info, ELEMDESC const& parameter, std::string const& name)
    {
        switch (parameter.paramdesc.wParamFlags) {
        case PARAMFLAG_FIN:
            return "in " + name + " As " + typeName(info, parameter.tdesc);
        case PARAMFLAG_FIN | PARAMFLAG_FOUT:
            if (parameter.tdesc.vt == VT_PTR)
                return "in out " + name + " As " + typeName(info, *parameter.tdesc.lptdesc);
            return "in out by value " + name;
        default:
            return format("flags %d ", parameter.paramdesc.wParamFlags) + name;
        }
    }

    std::string typeName(ITypeInfo& info, TYPEDESC const& type)
    {
        constexpr std::pair<VARTYPE, char const*> kPlain[] = {{VT_I2, "Integer"},   {VT_I4, "Long"},
                                                              {VT_R4, "Single"},    {VT_BSTR, "String"},
                                                              {VT_BOOL, "Boolean"}, {VT_VARIANT, "Variant"}};
        for (auto const& [known, name] : kPlain)
            if (type.vt == known)
                return name;
        if (type.vt == VT_USERDEFINED)
            return referencedName(info, type.hreftype);
        return type.vt == VT_PTR ? pointedName(info, *type.lptdesc) : format("type %d", type.vt);
    }

    /// Objects are always handled by pointer, and named without it.
    std::string pointedName(ITypeInfo& info, TYPEDESC const& target)
    {
        if (target.vt == VT_USERDEFINED) {
            ComPtr<ITypeInfo> referenced;
            check(info.GetRefTypeInfo(target.hreftype, referenced.put()));
            TYPEKIND const kind = TypeAttributes(*referenced.get())->typekind;
            if (kind == TKIND_DISPATCH || kind == TKIND_INTERFACE)
                return referencedName(info, target.hreftype);
        }
        return "pointer to " + typeName(info, target);
    }

    std::string referencedName(ITypeInfo& info, HREFTYPE reference)
    {
        ComPtr<ITypeInfo> referenced;
        check(info.GetRefTypeInfo(reference, referenced.put()));
        std::string const library = noteLibrary(*referenced.get());
        return (library == m_ownName ? "" : library + ".") + nameOf(*referenced.get());
    }

    void noteBase(ITypeInfo& info)
    {
        HREFTYPE reference = 0;
        check(info.GetRefTypeOfImplType(0, &reference));
        std::string const base = referencedName(info, reference);
        if (base != "stdole.IDispatch")
            m_lines.push_back("    derived from " + base);
    }

    std::string noteLibrary(ITypeInfo& referenced)
    {
        ComPtr<ITypeLib> library;
        UINT index = 0;
        check(referenced.GetContainingTypeLib(library.put(), &index));
        std::string const name = nameOfLibrary(*library.get());
        LibraryAttributes const attributes(*library.get());
        std::string const line =
            format("%s version %u.%u", name.c_str(), attributes->wMajorVerNum, attributes->wMinorVerNum);
        if (name != m_ownName && std::find(m_imports.begin(), m_imports.end(), line) == m_imports.end())
            m_imports.push_back(line);
        return name;
    }

    void describeClass(ITypeInfo& info, UINT count)
    {
        for (UINT i = 0; i < count; ++i) {
            HREFTYPE reference = 0;
            INT flags = 0;
            check(info.GetRefTypeOfImplType(i, &reference));
            check(info.GetImplTypeFlags(i, &flags));
            m_lines.push_back(std::string("   ") + (flags & IMPLTYPEFLAG_FDEFAULT ? " default" : "") +
                              (flags & IMPLTYPEFLAG_FSOURCE ? " source" : "") +
                              (flags & IMPLTYPEFLAG_FRESTRICTED ? " restricted" : "") +
                              (flags & IMPLTYPEFLAG_FDEFAULTVTABLE ? " defaultvtable " : " ") +
                              referencedName(info, reference));
        }
    }

    void describeEnumeration(ITypeInfo& info, UINT count)
    {
        for (UINT i = 0; i < count; ++i) {
            VariableDescription const value(info, i);
            bool const isLong = value->varkind == VAR_CONST && value->lpvarValue->vt == VT_I4;
            m_lines.push_back("    " + nameOf(info, value->memid) + " = " +
                              (isLong ? format("%ld", value->lpvarValue->lVal) : "not a Long"));
        }
    }

    static DWORD topicOf(ITypeInfo& info, MEMBERID id)
    {
        DWORD topic = 0;
        check(info.GetDocumentation(id, nullptr, nullptr, &topic, nullptr));
        return topic;
    }

    /// A member leads to the topic of its description; only another one is worth a line.
    void noteOtherTopic(DWORD topic)
    {
        if (topic != m_topic)
            m_lines.push_back(format("        topic %lu", topic));
    }

    void addHelp(Bstr const& help)
    {
        if (!help.view().empty())
            m_lines.push_back("        " + quoted(help.view()));
    }

    ITypeLib& m_library;
    std::string m_ownName;
    RawLibrary m_raw = rawLibrary();
    std::vector<std::string> m_imports;
    std::vector<std::string> m_lines;
    DWORD m_topic = 0; ///< of the description at hand
};

} // namespace

std::vector<std::string> describe(ITypeLib& library) { return Describer(library).run(); }

} // namespace quillet

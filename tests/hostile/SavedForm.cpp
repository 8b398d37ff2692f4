// What a control would save, and what must hold of every load.
#include "SavedForm.h"

#include "HostileTest.h"

namespace quillet::hostile {

kit::Bytes savedForm(Life& life)
{
    auto const stream = kit::streamOf();
    auto const own = life.as<IPersistStreamInit>();
    if (!own || FAILED(own->Save(stream.get(), FALSE)))
        return {};
    return kit::bytesOf(*stream.get());
}

HRESULT expectWholeLoad(Life& life, Life& other, std::function<HRESULT()> const& load)
{
    kit::Bytes const before = savedForm(life);
    HRESULT const result = load();
    kit::Bytes const after = savedForm(life);
    EXPECT_FALSE(after.empty()) << "nothing can be saved any more\n" << Journal::text();
    if (FAILED(result)) {
        EXPECT_EQ(after, before) << "a refused load changed the control\n" << Journal::text();
        return result;
    }
    life.draw();
    HRESULT const again = other.as<IPersistStreamInit>()->Load(kit::streamOf(after).get());
    EXPECT_TRUE(SUCCEEDED(again)) << "what was saved is not taken back\n" << Journal::text();
    // (S_FALSE: the system does not read back every picture that it has saved.)
    if (again != S_OK)
        return result;
    // An option button's form may name a default that it need not name: then it is as good as without.
    if (life.kind().classId == kQvFlatOptionClass) {
        EXPECT_EQ(life.as<IPersistStreamInit>()->Load(kit::streamOf(after).get()), S_OK) << Journal::text();
    }
    EXPECT_EQ(savedForm(other), savedForm(life)) << "what was saved comes back as something else\n"
                                                 << Journal::text();
    return result;
}

} // namespace quillet::hostile

// The entry point of test programs that use COM.
#include <ole2.h>
#include <windows.h>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    HRESULT const started = ::OleInitialize(nullptr);
    int const result = RUN_ALL_TESTS();
    if (SUCCEEDED(started))
        ::OleUninitialize();
    return result;
}

// Runs the tests of the form host inside the component runtime.
#include <ole2.h>
#include <windows.h>

#include <gtest/gtest.h>

int main(int count, char** words)
{
    ::testing::InitGoogleTest(&count, words);
    if (FAILED(::OleInitialize(nullptr)))
        return 1;
    int const result = RUN_ALL_TESTS();
    ::OleUninitialize();
    return result;
}

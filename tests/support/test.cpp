// Runs one of the tests that a program holds.
//
//   tst_<room> NAME [option or function of the test...]
#include "support/test.h"

#include <cstdio>
#include <map>
#include <string>

namespace {

std::map<std::string, TestBody, std::less<>> &tests()
{
    static std::map<std::string, TestBody, std::less<>> all;
    return all;
}

} // namespace

RegisteredTest::RegisteredTest(std::string_view file, TestBody body)
{
    const std::string_view before = "/tst_";
    const std::size_t begin = file.rfind(before) + before.size();
    tests().emplace(file.substr(begin, file.rfind('.') - begin), body);
}

int main(int argc, char *argv[])
{
    const auto test = argc > 1 ? tests().find(argv[1]) : tests().end();
    if (test == tests().end()) {
        std::fprintf(stderr, "which test? one of\n");
        for (const auto &[name, body] : tests())
            std::fprintf(stderr, "  %s\n", name.c_str());
        return 2;
    }
    argv[1] = argv[0];
    return test->second(argc - 1, argv + 1);
}

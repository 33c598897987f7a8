// The companion. `orrery --help` tells what it does.
#include "orrery/Arguments.h"
#include "orrery/System.h"

#include <cstdio>
#include <exception>
#include <string_view>

int main(int argc, char** argv) {
    orrery::tool::LeaveBytesAsTheyAre();
    try {
        orrery::tool::Arguments arguments;
        // What the shells ask is not for the parser: it may be anything.
        if (argc > 1 && std::string_view(argv[1]) == "complete") {
            std::fputs(orrery::tool::Completions(arguments.app(), {argv + 2, argv + argc}).c_str(), stdout);
            return orrery::tool::kDone;
        }
        try {
            arguments.app().parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            return arguments.Exit(error);
        }
        return arguments.Run();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "orrery: %s\n", error.what());
        return orrery::tool::kRefused;
    }
}

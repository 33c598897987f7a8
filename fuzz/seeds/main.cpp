// Writes one seed for each command that differs from the others: fuzz_seeds CORPUS_DIRECTORY
#include "support/FuzzInput.h"
#include "support/TableText.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

using namespace orrery;

namespace {

template <class Number>
void Put(std::string& out, Number number) {
    out.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void Write(const std::filesystem::path& file, const std::string& content) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: fuzz_seeds CORPUS_DIRECTORY\n", stderr);
        return 2;
    }
    const std::filesystem::path corpus = argv[1];
    for (const Command& command : test::DistinctCommands()) {
        const std::string text = test::ReplyText(command, {.most = 1, .records = 1});
        std::vector<std::byte> record(command.table->size);
        if (command.parses()) {
            std::string seed;
            Put(seed, test::FuzzNumberOf(command.name));
            Put(seed, std::uint32_t{1}); // a buffer of one record
            Put(seed, std::uint8_t{0});
            Write(corpus / "parse" / std::string(command.name), seed + text);
            test::CallerMemory memory;
            memory.PrepareBuffer(command, record.data(), record.size());
            RunParse(command, {text.c_str(), record.data(), command.table->size, nullptr});
        }
        if (!command.packs()) continue;
        std::string seed;
        Put(seed, test::FuzzNumberOf(command.name));
        Put(seed, std::uint32_t{5});
        Put(seed, std::uint16_t{0}); // one record
        Put(seed, std::uint8_t{8});  // with its size words
        constexpr std::size_t kMost = 1024;
        seed.append(reinterpret_cast<const char*>(record.data()), std::min(kMost, record.size()));
        Write(corpus / "pack" / std::string(command.name), seed);
    }
    return 0;
}

// Texts of records are in the encoding of the process, those of devices always UTF-8.
#include <clocale>
#include <cstdio>
#include <orrery/cpp.h>
#include <orrery/orrery.h>

static const char kReply[] = "{ \"result\" : true, \"params\" : { \"table\" : { \"Name\" : \"T\xc3\xbcr\" } } }";

int main() {
    std::setlocale(LC_ALL, ""); // the user's; without this call it is "C", where bytes pass as they are
    auto output = orrery::parse<CFG_ALARM_OUT_INFO>(kReply);
    if (!output) return 1;
    for (const char* at = (*output)->szName; *at; ++at)
        std::printf("%02x ", static_cast<unsigned char>(*at));
    std::puts("");
    auto text = orrery::pack(output->get()); // UTF-8 again
    if (!text) return 1;
    std::fputs(text->c_str(), stdout);
}

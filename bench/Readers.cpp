#include "bench/Readers.h"

namespace orrery::bench {

namespace {

namespace ondemand = simdjson::ondemand;

std::uint64_t Walk(ondemand::value value) {
    std::uint64_t sum = 0;
    switch (value.type()) {
    case ondemand::json_type::array:
        for (auto element : value.get_array())
            sum += Walk(element.value());
        break;
    case ondemand::json_type::object:
        for (auto field : value.get_object()) {
            sum += field.unescaped_key().value().size();
            sum += Walk(field.value());
        }
        break;
    case ondemand::json_type::number:
        sum += static_cast<std::uint64_t>(value.get_double().value());
        break;
    case ondemand::json_type::string:
        sum += value.get_string().value().size();
        break;
    case ondemand::json_type::boolean:
        sum += value.get_bool().value();
        break;
    case ondemand::json_type::null:
        break;
    }
    return sum;
}

} // namespace

bool SimdJsonOnDemandReader::operator()(std::size_t i) const {
    ondemand::document document;
    if (parser.iterate(texts[i]).get(document) != simdjson::SUCCESS) return false;
    benchmark::DoNotOptimize(Walk(document.get_value().value()));
    return true;
}

} // namespace orrery::bench

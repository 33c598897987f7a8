// Words of the vocabularies: a copy of what they are said of, with one member changed.
#pragma once

#include <type_traits>

namespace orrery {

template <class T, class Owner, class M>
constexpr T With(T said, M Owner::*member, std::type_identity_t<M> value) {
    said.*member = value;
    return said;
}

} // namespace orrery

#include "serialization/contents.hpp"

namespace QUOR_2_9::serialization::detail {

void append_growing(std::string &contents, char const *bytes, std::size_t count) {
	contents.append(bytes, count);
}

} // namespace QUOR_2_9::serialization::detail

#include "report/json.hpp"

#include <ostream>

namespace quor_cli {

void write_json(nlohmann::ordered_json const &value, std::ostream &out) {
	out << value.dump(2, ' ', true, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

std::string valid_utf8(std::string const &text) {
	std::string const quoted = nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
	return nlohmann::json::parse(quoted).get<std::string>();
}

} // namespace quor_cli

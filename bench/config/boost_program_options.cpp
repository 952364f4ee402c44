// Boost.Program_options, which reads files but has no store to ask without a description
// of every option.

#include <string>

#include <boost/program_options/options_description.hpp>
#include <boost/program_options/parsers.hpp>

#include "config/competition.hpp"

namespace config_bench {
namespace {

constexpr char const *name = "Boost.Program_options";

class option_file {
public:
	explicit option_file(config_file const &source)
	    : options(boost::program_options::parse_config_file(source.path.c_str(),
	                                                        boost::program_options::options_description(), true)) {}

	contents all() const {
		contents result;
		for (auto const &option : options.options) {
			result[option.string_key] = option.value.front();
		}
		return result;
	}

private:
	boost::program_options::parsed_options options;
};

void describe() {
	compete_in_loading<option_file>(name);
}

bench::entry const added(&describe);

} // namespace
} // namespace config_bench

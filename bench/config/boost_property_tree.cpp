// Boost.PropertyTree. The INI reader makes two levels; what is asked for keys of three
// components is a tree with three.

#include <string>

#include <boost/property_tree/ini_parser.hpp>
#include <boost/property_tree/ptree.hpp>

#include "config/competition.hpp"

namespace config_bench {
namespace {

constexpr char const *name = "Boost.PropertyTree";

class ini_file {
public:
	explicit ini_file(config_file const &source) { boost::property_tree::read_ini(source.path, tree); }

	contents all() const {
		contents result;
		for (auto const &[section, keys] : tree) {
			for (auto const &[key, value] : keys) {
				result[section + "." + key] = value.data();
			}
		}
		return result;
	}

private:
	boost::property_tree::ptree tree;
};

class deep_tree {
public:
	using key_type = boost::property_tree::ptree::path_type;

	explicit deep_tree(config_file const &source) {
		for (setting const &one : source.settings) {
			tree.put(key(one), one.value);
		}
	}

	key_type key(setting const &one) const { return {one.section + "." + one.name}; }
	std::string text(key_type const &key) const { return tree.get<std::string>(key); }
	int number(key_type const &key) const { return tree.get<int>(key); }
	static std::string plain(std::string const &text) { return text; }

private:
	boost::property_tree::ptree tree;
};

void describe() {
	compete<ini_file, deep_tree>(name);
}

bench::entry const added(&describe);

} // namespace
} // namespace config_bench

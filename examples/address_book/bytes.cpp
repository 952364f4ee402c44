#include "bytes.hpp"

#include <cstddef>
#include <iomanip>
#include <iostream>

namespace address_book {
namespace {

constexpr char digits[] = "0123456789abcdef";

bool is_plain(char unit) {
	return unit >= ' ' && unit <= '~';
}

} // namespace

void print_dump(std::string const &bytes) {
	for (std::size_t start = 0; start < bytes.size(); start += 16) {
		std::string hex;
		std::string characters;
		for (char const unit : bytes.substr(start, 16)) {
			auto const value = static_cast<unsigned char>(unit);
			hex += {digits[value / 16], digits[value % 16], ' '};
			characters += is_plain(unit) ? unit : '.';
		}
		std::cout << std::setw(5) << start << "  " << std::left << std::setw(48) << hex << std::right << ' '
		          << characters << '\n';
	}
}

void print_fields(std::string const &bytes) {
	constexpr std::size_t width = 80;
	std::string line;
	for (char const unit : bytes) {
		std::string shown(1, unit == '\x01' ? '|' : unit);
		if (unit != '\x01' && (!is_plain(unit) || unit == '|' || unit == '\\')) {
			auto const value = static_cast<unsigned char>(unit);
			shown = {'\\', digits[value / 16], digits[value % 16]};
		}
		if (line.size() + shown.size() > width) {
			std::cout << line << '\n';
			line.clear();
		}
		line += shown;
	}
	std::cout << line << '\n';
}

} // namespace address_book

#include "records.hpp"

#include <iomanip>
#include <iostream>

#include "bytes.hpp"

namespace address_book {

book sample() {
	person mina;
	mina.name = "Mina Okafor";
	mina.born = 1984;
	mina.zone = 4;
	mina.favourite = true;
	mina.met = 1456747200000000;
	mina.phones = {{"mobile", "+31 6 5550117"}, {"work", "+31 20 5550132"}};
	mina.home = place{"Heron Quay 17", "Pellwick", 52.370215912345678, 4.8951679, -1.5F};

	person zoe;
	zoe.name = "Zo\xC3\xAB Brandt";
	zoe.born = 1951;
	zoe.zone = -14;
	zoe.met = -86400000000;
	zoe.note = "bring tea\x01keys: third pot";
	zoe.phones = {{"home", "555-0178"}};

	person old_cat;
	old_cat.name = "Tibbles";
	old_cat.born = -32;
	return {mina, zoe, old_cat};
}

void list(book const &all) {
	for (person const &each : all) {
		std::cout << each.name << (each.favourite ? ", a favourite" : "") << '\n'
		          << "    born   " << each.born << '\n'
		          << "    zone   " << 15 * each.zone << " min\n"
		          << "    met    " << each.met / 1000000 << " s\n";
		if (!each.note.empty()) {
			std::cout << "    note   ";
			print_fields(each.note);
		}
		for (phone const &one : each.phones) {
			std::cout << "    phone  " << one.number << " (" << one.kind << ")\n";
		}
		if (each.home) {
			std::cout << "    home   " << each.home->street << ", " << each.home->town << '\n'
			          << "           " << std::setprecision(17) << each.home->latitude << ' ' << each.home->longitude
			          << ", " << each.home->height << " m\n";
		}
	}
}

} // namespace address_book

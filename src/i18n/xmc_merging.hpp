#ifndef QUOR_SRC_I18N_XMC_MERGING_HPP
#define QUOR_SRC_I18N_XMC_MERGING_HPP

#include <quor/export.hpp>
#include <quor/i18n/xmc_file_loader.hpp>

namespace QUOR_2_9::i18n::_private {

// Puts what a loader has read into a map of catalogs, as `combine_data` is told to.
class QUOR_LOCAL xmc_file_loader::merging {
public:
	// The loader keeps what it has read.
	static types::uint32 copy(xmc_file_loader const &from, catalog_map &to);
	// The messages go over as they are; those that the map doesn't take are of no use any more.
	static types::uint32 move(xmc_file_loader &from, catalog_map &to);

	// What becomes of two texts of equal weight.
	enum tie { first_stays, newer_wins };
	static types::uint32 merge(xmc_file_loader const &loader, catalog_t const &from, catalog_t &to, tie at_tie);

private:
	static catalog_t &catalog_of(catalog_map &map, strings::ustring8 const &name);
};

} // namespace QUOR_2_9::i18n::_private

#endif

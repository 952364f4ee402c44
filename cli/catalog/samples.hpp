#ifndef QUOR_CLI_CATALOG_SAMPLES_HPP
#define QUOR_CLI_CATALOG_SAMPLES_HPP

#include <string>
#include <vector>

#include <quor/quor.hpp>

namespace quor_cli {

// What an argument piece of a message refers to.
std::string argument_name(quor::i18n::message_item const &item);

// A value that shows what an item of this type does; text shows the argument's name.
quor::types::variant sample_value(quor::i18n::message_item::type_t type, std::string const &name);

// Values that between them suit every sensible format of a type.
std::vector<quor::types::variant> trial_values(quor::i18n::message_item::type_t type);

// A sample value for each argument of a message, but for those that are there.
void add_samples(quor::i18n::message_t const &message, quor::generic::varg_list &arguments);

// The word for a type, as catalogs write it.
std::string type_word(quor::i18n::message_item::type_t type);

// The type that a word of the type attribute stands for.
quor::i18n::message_item::type_t type_of_word(std::string const &word);

} // namespace quor_cli

#endif

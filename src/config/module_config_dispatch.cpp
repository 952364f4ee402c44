#include <quor/config/module_config_dispatch.hpp>

#include <utility>

#include <quor/config/enviroment_item.hpp>
#include <quor/config/file_item.hpp>
#include <quor/config/user_item.hpp>
#include <quor/generic/abilities/alloc_detection_ability.hpp>

namespace QUOR_2_9::config {

module_config_dispatch::module_config_dispatch(generic::varg_list const &files, char const *const *envp)
    : m_envp(envp) {
	m_file_names.reserve(files.size());
	for (generic::argument const &file : files) {
		m_file_names.push_back(file.value().as_string());
	}
}

module_config_dispatch::module_config_dispatch(module_config_dispatch const &) = default;

module_config_dispatch &module_config_dispatch::operator=(module_config_dispatch const &other) {
	std::vector<strings::ustring8> file_names = other.m_file_names;
	m_envp = other.m_envp;
	m_file_names = std::move(file_names);
	return *this;
}

module_config_dispatch::~module_config_dispatch() = default;

void module_config_dispatch::setup(item_list &items) const {
	item_list made;
	for (strings::ustring8 const &name : m_file_names) {
		made.push_back(generic::abilities::create_dynamic<file_item>(name));
	}
	made.push_back(enviroment_item(m_envp).clone());
	made.push_back(user_item().clone());
	items.splice(items.end(), made);
}

module_config_dispatch *module_config_dispatch::clone() const {
	return new module_config_dispatch(*this);
}

} // namespace QUOR_2_9::config

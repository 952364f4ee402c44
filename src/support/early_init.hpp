#ifndef QUOR_SUPPORT_EARLY_INIT_HPP
#define QUOR_SUPPORT_EARLY_INIT_HPP

/// Marks the definition of a static object that static initialisers of the library's
/// users may ask for: it is built before, and destroyed after, every ordinary static
/// object, also where the library is linked statically.
#define QUOR_EARLY_INIT __attribute__((init_priority(200)))

#endif

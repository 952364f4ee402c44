// Nothing of its own: this file carries the precompiled headers of all test programs.

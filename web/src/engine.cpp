// The engine in WebAssembly is the C interface, which the linker takes from the library.

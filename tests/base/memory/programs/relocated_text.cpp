// A library in whose program the linker has to write: a place there holds its own address.
__asm__(
    ".text\n"
    ".space 16384\n"
    ".balign 8\n"
    ".globl norvexOwnAddress\n"
    "norvexOwnAddress: .quad norvexOwnAddress\n"
    ".space 16384\n");

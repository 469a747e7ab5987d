// Carries the headers that every test program takes precompiled.

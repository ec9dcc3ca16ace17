// SPDX-License-Identifier: Apache-2.0
/* Linked statically, the library takes no name of a program's but those of its exports. */
int initializer(void);
int destructor(void);
int initializer(void) { return 1; }
int destructor(void) { return 2; }

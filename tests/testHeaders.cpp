// Nothing of its own: the headers that every test includes are compiled with it, once.

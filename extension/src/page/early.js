// Does nothing. It runs before the page has any frame: Chromium sets up what its functions are called by, "chrome" and
// "browser", for the first script in a page, and not at all where a frame with such a name is there already.

? "http://example";     // expect: http://example

// "[" begins a path with an empty name and stays unread.
? [1];                  // expect status: 42

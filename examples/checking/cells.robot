# The cell that matters: the product of 7 and 6 at 9000. Row 0 of the table is its heading.
dump WatchWindowDialog.MemoryTable 36865 36865

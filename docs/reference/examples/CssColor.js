var colour = CssColor.fromRgb(1, 2, 3);
test.compare(String(colour), "rgba(1,2,3,1)");
test.compare([colour.red, colour.green, colour.blue, colour.alpha], [1, 2, 3, 1]);
test.verify(colour.isValid);
test.compare(CssColor.fromRgba(1, 2, 3, 0.5).alpha, 0.5);

? classload("NOBODY");          // expect status: 14

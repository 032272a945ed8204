? classload("");                // expect status: 14
